#pragma once

#include <span>
#include <vector>

#include "controls/panel.h"
#include "topics/economics/gtm_exercise.h"

namespace tavrune {

/// Where a formula stands in its box, in units.
struct FormulaPlace {
    double top{};
    /// From the left of a Q to the left of its exponent.
    double exponentOffset = fromTwips(120);
};

/// Writes formulas into a box, each at its one of `places`, in place of all that stood there. Each label
/// begins where the one before it ends; exponents are raised and take no room of their own.
void showFormulas(Panel& box, const std::vector<Formula>& formulas, std::span<const FormulaPlace> places);

}  // namespace tavrune
