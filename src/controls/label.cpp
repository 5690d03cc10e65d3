#include "controls/label.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include "controls/text.h"

namespace tavrune {

Label::Label(QWidget* parent) : QLabel(parent), Control(this) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setIndent(0);
    wear(designFont());
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

void Label::setHaloed(bool haloed) {
    haloed_ = haloed;
    update();
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

void Label::paintEvent(QPaintEvent* event) {
    if (haloed_) {
        paintHalo();
    }
    if (wordWrap() && zoom() != 1) {
        paintLines();
    } else {
        QLabel::paintEvent(event);
    }
}

void Label::paintHalo() {
    QPainter painter(this);
    painter.setPen(kWhite);
    // Letters consist of thin strokes, so that copies in four directions surround them.
    for (const double dx : {-1.0, 1.0}) {
        for (const double dy : {-1.0, 1.0}) {
            const QRectF moved = QRectF(contentsRect()).translated(dx * zoom(), dy * zoom());
            painter.drawText(moved, static_cast<int>(alignment()), text());
        }
    }
}

void Label::paintLines() {
    QTextLayout layout(QString(text()).replace('\n', QChar::LineSeparator), font());
    QTextOption option(alignment() & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    // Not the height of the zoomed font: that is rounded to whole pixels, and lines would drift from the
    // design.
    const QFontMetricsF design(unzoomedFont());
    const double pitch = (std::ceil(design.ascent()) + std::ceil(design.descent())) * zoom();
    double top = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width());
        line.setPosition({0, top});
        top += pitch;
    }
    layout.endLayout();
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const double lower = alignment().testFlag(Qt::AlignVCenter) ? (height() - top) / 2 : 0;
    layout.draw(&painter, {0, lower});
}

}  // namespace tavrune
