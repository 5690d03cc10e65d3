#pragma once

#include <functional>
#include <string>
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

/// Whether a widget that is shown is painted again once something has happened to it.
[[nodiscard]] bool isPaintedAfter(QWidget& shown, const std::function<void()>& happen);

/// All that a widget paints itself, without its children: a line for each operation, in their order, with
/// its place in pixels of the widget.
///
///     fill 0 0 80 1 #808080
///     text "RIGTIGT" at 3 12, 11 high, #008200
[[nodiscard]] std::vector<std::string> painting(QWidget& widget);

}  // namespace tavrune::test
