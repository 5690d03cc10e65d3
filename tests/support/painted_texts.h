#pragma once

#include <vector>

#include <QColor>
#include <QString>
#include <QWidget>

namespace tavrune::test {

/// Letters that were painted in one go.
struct PaintedText {
    QString text;
    /// Where they begin on their baseline, in pixels of the widget. Upright, letters are painted at whole
    /// pixels.
    double x = 0;
    int baseline = 0;
    QColor colour;
};

/// The texts that a widget paints itself, without its children, in their order.
[[nodiscard]] std::vector<PaintedText> paintedTexts(QWidget& widget);

}  // namespace tavrune::test
