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

void Label::initPainter(QPainter* painter) const {
    QLabel::initPainter(painter);
    // Fields are measured in the design font too, which is looked up in any case; of other sizes there would
    // be no end.
    if (zoom() == 1 && font() != designFont()) {
        painter->setFont(paintFont(font()));
    }
}

double Label::baseline(int line, int lines) const {
    // Not the metrics of the zoomed font: these are rounded to whole pixels, and texts would drift from what
    // stands beside them.
    const QFontMetricsF design(unzoomedFont());
    const double pitch = std::ceil(design.ascent()) + std::ceil(design.descent());
    const bool isCentred = alignment().testFlag(Qt::AlignVCenter);
    const double above = isCentred ? (designSize().height() - (lines - 1) * pitch - design.height()) / 2 : 0;
    // Qt draws letters at whole pixels, the lower one where it is half way to the next.
    const double fromTop = std::ceil(above + design.ascent() - 0.5) + line * pitch;
    return qRound((place().top() + fromTop) * zoom()) - y();
}

void Label::paintEvent(QPaintEvent* event) {
    if (zoom() != 1) {
        paintZoomed();
        return;
    }
    if (haloed_) {
        QPainter painter(this);
        paintHalo(painter, [&](const QPointF& moved) {
            painter.drawText(QRectF(contentsRect()).translated(moved), static_cast<int>(alignment()), text());
        });
    }
    QLabel::paintEvent(event);
}

void Label::paintHalo(QPainter& painter, const std::function<void(const QPointF&)>& paintText) const {
    painter.setPen(kWhite);
    // Letters consist of thin strokes, so that copies in four directions surround them.
    for (const double dx : {-zoom(), zoom()}) {
        for (const double dy : {-zoom(), zoom()}) {
            paintText({dx, dy});
        }
    }
}

QStringList Label::designLines() const {
    if (!wordWrap()) {
        return text().split('\n');
    }
    QTextLayout design(QString(text()).replace('\n', QChar::LineSeparator), unzoomedFont());
    QStringList lines;
    design.beginLayout();
    for (QTextLine line = design.createLine(); line.isValid(); line = design.createLine()) {
        line.setLineWidth(designSize().width());
        QString words = design.text().mid(line.textStart(), line.textLength());
        // Blanks at the end of a line take no room.
        while (words.endsWith(QChar::LineSeparator) || words.endsWith(' ')) {
            words.chop(1);
        }
        lines << words;
    }
    return lines;
}

void Label::paintZoomed() {
    QTextLayout layout(designLines().join(QChar::LineSeparator), font());
    QTextOption option(alignment() & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::ManualWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(place().width() * zoom());
    }
    layout.endLayout();
    // Of the place itself, not of its rounded edge: texts over each other's gaps, and their covers, would be
    // a pixel off.
    const double left = place().left() * zoom() - x();
    for (int i = 0; i < layout.lineCount(); ++i) {
        QTextLine line = layout.lineAt(i);
        line.setPosition({left, baseline(i, layout.lineCount()) - line.ascent()});
    }
    QPainter painter(this);
    if (haloed_) {
        paintHalo(painter, [&](const QPointF& moved) { layout.draw(&painter, moved); });
    }
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, {0, 0});
}

}  // namespace tavrune
