#include "controls/text_places.h"

#include <algorithm>
#include <cmath>

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
    TextExtent extent;
    extent.line = QRectF(left, top, width, height);
    extent.ink =
        QRectF(left, top + std::ceil(metrics.ascent()) - metrics.capHeight(), width, metrics.capHeight())
            .adjusted(blank * static_cast<double>(before), 0, -blank * static_cast<double>(behind), 0);
    return extent;
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
    const auto line = std::min_element(lines_.begin(), lines_.end(), [&](const Line& one, const Line& other) {
        const double y = ink.center().y() - pitch_ / 2;
        return std::abs(one.top - y) < std::abs(other.top - y);
    });
    const std::vector<double>& edges = line->edges;
    const auto nearest = [&](double x) {
        return std::min_element(
                   edges.begin(), edges.end(),
                   [x](double one, double other) { return std::abs(one - x) < std::abs(other - x); }) -
               edges.begin();
    };
    Gap gap;
    gap.boundary = line->start + nearest(ink.left());
    // The letter that the middle stands over.
    const auto over = std::upper_bound(edges.begin(), edges.end(), ink.center().x()) - edges.begin() - 1;
    qsizetype first = line->start + std::clamp<qsizetype>(over, 0, static_cast<qsizetype>(edges.size()) - 1);
    gap.first = first;
    gap.length = 1;
    const auto isBlank = [this](qsizetype i) {
        return i >= 0 && i < text_.size() && text_[i].isSpace() && text_[i] != '\n';
    };
    gap.isBlank = isBlank(first);
    if (gap.isBlank) {
        while (isBlank(first - 1)) {
            --first;
        }
        qsizetype end = gap.first;
        while (isBlank(end)) {
            ++end;
        }
        gap.first = first;
        gap.length = end - first;
    }
    return gap;
}

}  // namespace tavrune
