#pragma once

#include <QWidget>

#include "controls/control.h"

namespace tavrune {

/// A white box that lies over part of a page and holds other controls: a help panel, or a part of one that a
/// "Vis" button shows. What lies under it is out of the pointer's reach.
class Panel : public QWidget, public Control {
    Q_OBJECT

public:
    explicit Panel(QWidget* parent = nullptr);

    /// A frame round the box: for help panels, not for boxes inside them.
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
