#include "controls/table_head.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>

namespace tavrune {

void TableHead::standOver(const std::vector<const Control*>& columns) {
    middles_.clear();
    std::transform(columns.begin(), columns.end(), std::back_inserter(middles_),
                   [this](const Control* column) { return column->place().center().x() - place().left(); });
    update();
}

std::vector<std::pair<QRectF, QString>> TableHead::words() const {
    const QStringList names = text().split(' ', Qt::SkipEmptyParts);
    const QFontMetricsF metrics(font());
    std::vector<std::pair<QRectF, QString>> placed;
    for (std::size_t i = 0; i < middles_.size() && i < static_cast<std::size_t>(names.size()); ++i) {
        const QString& name = names[static_cast<qsizetype>(i)];
        const double width = metrics.horizontalAdvance(name);
        placed.emplace_back(QRectF(middles_[i] * zoom() - width / 2, 0, width, metrics.height()), name);
    }
    return placed;
}

void TableHead::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(textColour());
    for (const auto& [place, name] : words()) {
        painter.drawText(QPointF(place.left(), baseline(0, 1)), name);
    }
}

}  // namespace tavrune
