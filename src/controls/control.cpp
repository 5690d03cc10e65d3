#include "controls/control.h"

#include <map>

#include <QFont>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QtMath>

namespace tavrune {
namespace {

/// From this size on, hinting does not change how letters look, and only takes time.
constexpr double kLargeText = 17;

/// Hints at most vertically, whatever the desktop has set: horizontal hinting would round widths to whole
/// pixels, and texts would not grow evenly with their size.
QFont sized(QFont font, double units) {
    font.setPixelSize(qMax(1, qRound(units)));
    font.setHintingPreference(units < kLargeText ? QFont::PreferVerticalHinting : QFont::PreferNoHinting);
    return font;
}

/// Font sizes are whole pixels, which most zooms are not: the font has the next smaller size, and the letters
/// are spaced so that a text is as wide as the zoom wants it.
QFont zoomed(const QFont& design, double zoom) {
    QFont font = design;
    font.setPixelSize(qMax(1, qFloor(design.pixelSize() * zoom)));
    font.setLetterSpacing(QFont::PercentageSpacing, 100 * zoom * design.pixelSize() / font.pixelSize());
    return font;
}

/// Returns the first of these families that is installed, alone; all of them if none is.
QStringList installed(const QStringList& families) {
    // A question for the family itself would make a sorted list of all that are installed.
    const auto first = std::find_if(families.begin(), families.end(), [](const QString& family) {
        return !QFontDatabase::styles(family).isEmpty();
    });
    return first == families.end() ? families : QStringList(*first);
}

}  // namespace

const QFont& designFont() {
    // Copies of a QFont share what Qt looks up for it, so there is one. It is never deleted, so that it
    // outlives all copies.
    static const QFont* const kFont = [] {
        auto* const font = new QFont(sized(QFont(), kDesignTextSize));
        font->setFamilies({"Arial", "Liberation Sans", "Arimo", "Helvetica"});
        return font;
    }();
    return *kFont;
}

const QFont& paintFont(const QFont& font) {
    // Never deleted, as the design font.
    static auto& known = *new std::map<QFont, QFont>;
    const auto [place, isNew] = known.try_emplace(font, font);
    if (isNew) {
        place->second.setFamilies(installed(font.families()));
    }
    return place->second;
}

QRectF Control::place() const { return place_.value_or(QRectF(self_->geometry())); }

void Control::setPlace(const QRectF& place) {
    place_ = place;
    applyPlace();
}

QSize Control::designSize() const {
    const QRectF here = place();
    return {qRound(here.right()) - qRound(here.left()), qRound(here.bottom()) - qRound(here.top())};
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
    // Edges are rounded, not sizes: controls that touch in the design touch on the screen.
    const QRectF& p = *place_;
    const int left = qRound(p.left() * zoom_);
    const int top = qRound(p.top() * zoom_);
    self_->setGeometry(left, top, qRound(p.right() * zoom_) - left, qRound(p.bottom() * zoom_) - top);
}

void Control::wear(const QFont& font) {
    if (self_->font() != font) {
        self_->setFont(font);
    }
}

void Control::applyFont() {
    const QFont design = unzoomedFont();
    wear(zoom_ == 1 ? design : zoomed(design, zoom_));
    fontHasChanged();
}

double wholePixels(const QPaintDevice& device, double width) {
    const double ratio = device.devicePixelRatioF();
    return qMax(1, qFloor(width * ratio)) / ratio;
}

void drawOutline(QPainter& painter, const QRectF& box, double units, const QColor& colour) {
    const double width = wholePixels(*painter.device(), units);
    painter.fillRect(QRectF(box.left(), box.top(), box.width(), width), colour);
    painter.fillRect(QRectF(box.left(), box.bottom() - width, box.width(), width), colour);
    painter.fillRect(QRectF(box.left(), box.top(), width, box.height()), colour);
    painter.fillRect(QRectF(box.right() - width, box.top(), width, box.height()), colour);
}

void drawOutline(QWidget& widget, double zoom, const QColor& colour) {
    QPainter painter(&widget);
    drawOutline(painter, widget.rect(), zoom, colour);
}

void showFocusAlways(QStyleOption& option) { option.state |= QStyle::State_KeyboardFocusChange; }

void focusOn(QWidget* widget) {
    if (widget->isVisible() && widget->isEnabled()) {
        widget->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace tavrune
