#pragma once

#include <QLineF>
#include <QWidget>

#include "controls/control.h"

namespace tavrune {

/// A straight line on a page: fraction bars, root signs, ways in a diagram. Its ends are corners of its
/// place.
class LineControl : public QWidget, public Control {
    Q_OBJECT

public:
    explicit LineControl(QWidget* parent = nullptr);

    /// True: from the lower left to the upper right corner. False: from the upper left to the lower right.
    void setRising(bool rising);

    /// The ends in units, within the parent.
    void setEnds(const QLineF& ends);
    [[nodiscard]] QLineF ends() const;

    /// Moves the end of a level line.
    void setRightEnd(double x);

    void setColour(const QColor& colour);
    [[nodiscard]] QColor colour() const { return palette().color(QPalette::WindowText); }

    /// In units, 1 until set.
    void setThickness(double units);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool rising_ = false;
    double thickness_ = 1;
};

}  // namespace tavrune
