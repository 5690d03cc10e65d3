#include "controls/label.h"

#include <cmath>

#include <QFontMetricsF>

#include "controls/text.h"

namespace tavrune {

Label::Label(QWidget* parent) : QLabel(parent), Control(this) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setIndent(0);
    setFont(designFont());
}

void Label::setCaption(std::string_view caption) { setText(fromUtf8(caption)); }

void Label::setText(const QString& text) {
    QLabel::setText(text);
    fit();
}

void Label::setAutoSize(bool autoSize) {
    autoSize_ = autoSize;
    fit();
}

void Label::setBackColour(const QColor& colour) {
    setPaletteColour(QPalette::Window, colour);
    setAutoFillBackground(true);
}

void Label::setTextColour(const QColor& colour) { setPaletteColour(QPalette::WindowText, colour); }

double Label::textWidth() const { return std::ceil(QFontMetricsF(unzoomedFont()).horizontalAdvance(text())); }

void Label::fit() {
    if (!autoSize_) {
        return;
    }
    QRectF fitted = place();
    fitted.setSize({textWidth(), std::ceil(QFontMetricsF(unzoomedFont()).height())});
    setPlace(fitted);
}

}  // namespace tavrune
