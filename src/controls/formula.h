#pragma once

#include <vector>

#include <QLineF>
#include <QWidget>

#include "controls/part.h"

namespace tavrune {

/// A line within the box.
struct PageLine {
    QLineF ends;
    const QWidget* widget = nullptr;
};

/// Puts together what belongs together by its place: numbers in the gaps of a text, exponents, roots,
/// integral signs with limits, fractions. What is left over stays as it was. Decorative labels that have no
/// place in any of them are taken out, and so is what a label with a name of its own says.
[[nodiscard]] std::vector<Part> combined(std::vector<Part> parts, std::vector<PageLine> lines);

}  // namespace tavrune
