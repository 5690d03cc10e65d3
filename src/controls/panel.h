#pragma once

#include <QWidget>

#include "controls/control.h"

namespace tavrune {

/// A white box over part of a page, with controls in it: a help panel, or a part of one that a button shows.
/// Clicks do not reach what lies under it.
class Panel : public QWidget, public Control {
    Q_OBJECT

public:
    explicit Panel(QWidget* parent = nullptr);

    /// Draws a frame round the box, for help panels.
    void setFramed(bool framed);

    void setBackColour(const QColor& colour);
    [[nodiscard]] QColor backColour() const { return palette().color(QPalette::Window); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool framed_ = false;
};

}  // namespace tavrune
