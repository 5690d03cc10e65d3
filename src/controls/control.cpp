#include "controls/control.h"

#include <QFont>
#include <QPalette>

namespace tavrune {
namespace {

QFont sized(QFont font, double units) {
    font.setPixelSize(qMax(1, qRound(units)));
    return font;
}

}  // namespace

QFont designFont() {
    QFont font;
    font.setFamilies({"Arial", "Liberation Sans", "Arimo", "Helvetica"});
    font.setPixelSize(qRound(kDesignTextSize));
    return font;
}

QRectF Control::place() const { return place_.value_or(QRectF(self_->geometry())); }

void Control::setPlace(const QRectF& place) {
    place_ = place;
    applyPlace();
}

void Control::setLeft(double left) {
    QRectF moved = place();
    moved.moveLeft(left);
    setPlace(moved);
}

void Control::setTop(double top) {
    QRectF moved = place();
    moved.moveTop(top);
    setPlace(moved);
}

void Control::setWidth(double width) {
    QRectF sized = place();
    sized.setWidth(width);
    setPlace(sized);
}

void Control::setHeight(double height) {
    QRectF sized = place();
    sized.setHeight(height);
    setPlace(sized);
}

QFont Control::unzoomedFont() const { return font_.value_or(designFont()); }

void Control::setTextSize(double units) {
    textSize_ = units;
    font_ = sized(unzoomedFont(), units);
    applyFont();
}

void Control::setBold(bool bold) {
    QFont font = unzoomedFont();
    font.setBold(bold);
    font_ = font;
    applyFont();
}

void Control::setSerif(bool serif) {
    QFont font = unzoomedFont();
    font.setFamilies(serif ? QStringList{"Times New Roman", "Liberation Serif"} : designFont().families());
    font_ = font;
    applyFont();
}

void Control::setUnderlined(bool underlined) {
    QFont font = unzoomedFont();
    font.setUnderline(underlined);
    font_ = font;
    applyFont();
}

void Control::setZoom(double zoom) {
    if (!place_) {
        place_ = place();
    }
    zoom_ = zoom;
    applyFont();
    applyPlace();
}

void Control::setPaletteColour(QPalette::ColorRole role, const QColor& colour) {
    QPalette palette = self_->palette();
    palette.setColor(role, colour);
    self_->setPalette(palette);
}

void Control::applyPlace() {
    // Edges are rounded, not sizes: what meets in the design meets on the screen.
    const QRectF& p = *place_;
    const int left = qRound(p.left() * zoom_);
    const int top = qRound(p.top() * zoom_);
    self_->setGeometry(left, top, qRound(p.right() * zoom_) - left, qRound(p.bottom() * zoom_) - top);
}

void Control::applyFont() {
    self_->setFont(sized(unzoomedFont(), textSize_ * zoom_));
    fontHasChanged();
}

void focusOn(QWidget* widget) {
    if (widget->isVisible() && widget->isEnabled()) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace tavrune
