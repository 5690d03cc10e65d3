#pragma once

#include <QLineF>
#include <QWidget>

#include "controls/control.h"

namespace tavrune {

/// A straight line on a page: a fraction bar, a part of a root sign or of a diagram. It joins two corners of
/// its place.
class LineControl : public QWidget, public Control {
    Q_OBJECT

public:
    explicit LineControl(QWidget* parent = nullptr);

    /// Chooses the corners: true for lower left and upper right, false for upper left and lower right.
    void setRising(bool rising);

    /// Sets both ends, in units within the parent.
    void setEnds(const QLineF& ends);
    [[nodiscard]] QLineF ends() const;

    /// Moves the right end. Precondition: the line is level.
    void setRightEnd(double x);

    void setColour(const QColor& colour);
    [[nodiscard]] QColor colour() const { return palette().color(QPalette::WindowText); }

    /// Sets the thickness in units, 1 at first.
    void setThickness(double units);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool rising_ = false;
    double thickness_ = 1;
};

}  // namespace tavrune
