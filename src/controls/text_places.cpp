#include "controls/text_places.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include <QFontMetricsF>
#include <QTextLayout>

namespace tavrune {
namespace {

double heightOf(const QFontMetricsF& metrics) {
    return std::ceil(metrics.ascent()) + std::ceil(metrics.descent());
}

/// Of `lines` lines, by the label's alignment.
double topOf(const Label& label, double height) {
    const QRectF place = label.place();
    return label.alignment().testFlag(Qt::AlignVCenter) ? place.center().y() - height / 2 : place.top();
}

}  // namespace

TextExtent extentOf(const Label& label) {
    const QFontMetricsF metrics(label.unzoomedFont());
    const QString text = label.text();
    const QRectF place = label.place();
    const double width = metrics.horizontalAdvance(text);
    const double height = heightOf(metrics);
    const double top = topOf(label, height);
    double left = place.left();
    if (label.alignment().testFlag(Qt::AlignHCenter)) {
        left = place.center().x() - width / 2;
    } else if (label.alignment().testFlag(Qt::AlignRight)) {
        left = place.right() - width;
    }
    const auto isInk = [](QChar letter) { return !letter.isSpace(); };
    const auto before = std::find_if(text.begin(), text.end(), isInk) - text.begin();
    const auto behind = std::find_if(text.rbegin(), text.rend(), isInk) - text.rbegin();
    const double blank = metrics.horizontalAdvance(QChar(' '));
    const double baseline = top + std::ceil(metrics.ascent());
    return {QRectF(left + blank * static_cast<double>(before), baseline - metrics.capHeight(),
                   width - blank * static_cast<double>(before + behind), metrics.capHeight()),
            QRectF(left, top, width, height)};
}

TextPlaces::TextPlaces(const Label& label) : text_(label.text()) {
    const QFontMetricsF metrics(label.unzoomedFont());
    pitch_ = heightOf(metrics);
    QTextLayout layout(QString(text_).replace('\n', QChar::LineSeparator), label.unzoomedFont());
    QTextOption option(label.alignment() & Qt::AlignHorizontal_Mask);
    option.setWrapMode(label.wordWrap() ? QTextOption::WordWrap : QTextOption::NoWrap);
    layout.setTextOption(option);
    const QRectF place = label.place();
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(place.width());
        Line found{static_cast<double>(lines_.size()) * pitch_, line.textStart(), {}};
        for (int i = 0; i <= line.textLength(); ++i) {
            found.edges.push_back(place.left() + line.cursorToX(line.textStart() + i));
        }
        lines_.push_back(std::move(found));
    }
    layout.endLayout();
    const double top = topOf(label, static_cast<double>(lines_.size()) * pitch_);
    for (Line& line : lines_) {
        line.top += top;
    }
}

TextPlaces::Gap TextPlaces::at(const QRectF& ink) const {
    const double top = ink.center().y() - pitch_ / 2;
    const Line& line =
        *std::ranges::min_element(lines_, {}, [&](const Line& one) { return std::abs(one.top - top); });
    const auto begin = line.edges.begin();
    const auto nearest =
        std::ranges::min_element(line.edges, {}, [&](double edge) { return std::abs(edge - ink.left()); });
    const qsizetype boundary = line.start + (nearest - begin);
    // The letter that the middle stands over.
    const auto over = std::upper_bound(begin, line.edges.end(), ink.center().x()) - begin - 1;
    const auto letter = text_.begin() + line.start + std::max<qsizetype>(over, 0);
    const auto isBlank = [](QChar sign) { return sign.isSpace() && sign != '\n'; };
    const auto last = std::find_if_not(letter, text_.end(), isBlank);
    if (last == letter) {
        return {false, letter - text_.begin(), last - letter, boundary};
    }
    const auto first = std::find_if_not(std::make_reverse_iterator(letter), text_.rend(), isBlank).base();
    return {true, first - text_.begin(), last - first, boundary};
}

}  // namespace tavrune
