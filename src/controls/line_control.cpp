#include "controls/line_control.h"

#include <cmath>

#include <QPainter>
#include <QPalette>
#include <QtMath>

namespace tavrune {

LineControl::LineControl(QWidget* parent) : QWidget(parent), Control(this) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setColour(kBlack);
}

void LineControl::setRising(bool rising) {
    rising_ = rising;
    update();
}

void LineControl::setEnds(const QLineF& ends) {
    // What runs along an axis neither rises nor falls, and is not asked.
    rising_ = std::signbit(ends.dx()) != std::signbit(ends.dy());
    QRectF box = QRectF(ends.p1(), ends.p2()).normalized();
    box.setWidth(qMax(box.width(), thickness_));
    box.setHeight(qMax(box.height(), thickness_));
    setPlace(box);
    update();
}

QLineF LineControl::ends() const {
    const QRectF box = place();
    if (box.height() <= thickness_) {
        return {box.topLeft(), box.topRight()};
    }
    if (box.width() <= thickness_) {
        return {box.topLeft(), box.bottomLeft()};
    }
    return rising_ ? QLineF(box.bottomLeft(), box.topRight()) : QLineF(box.topLeft(), box.bottomRight());
}

void LineControl::setRightEnd(double x) {
    QRectF box = place();
    box.setRight(x);
    setPlace(box);
}

void LineControl::setColour(const QColor& colour) { setPaletteColour(QPalette::WindowText, colour); }

void LineControl::setThickness(double units) {
    thickness_ = units;
    update();
}

void LineControl::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const double width = thickness_ * zoom();
    // By the design, too: between whole zooms the rounded edges of one line are a pixel further apart than
    // those of another, which does not make it thicker or slanted. All have room for the whole units.
    const bool isLevel = place().height() <= thickness_ || height() <= width + 0.5;
    if (isLevel || place().width() <= thickness_ || this->width() <= width + 0.5) {
        const double pixels = wholePixels(*this, qMax(1, qFloor(width)));
        painter.fillRect(isLevel ? QRectF(0, 0, this->width(), pixels) : QRectF(0, 0, pixels, height()),
                         colour());
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(), width));
    const QRectF inner = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    if (rising_) {
        painter.drawLine(inner.bottomLeft(), inner.topRight());
    } else {
        painter.drawLine(inner.topLeft(), inner.bottomRight());
    }
}

}  // namespace tavrune
