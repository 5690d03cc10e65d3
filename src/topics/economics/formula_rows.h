#pragma once

#include <span>
#include <vector>

#include "controls/panel.h"
#include "topics/economics/gtm_exercise.h"

namespace tavrune {

/// Writes formulas into a box, the top of each at its one of `tops`, in units, in place of all that stood
/// there. Each label begins where the one before it ends; exponents are raised and take no room of their own.
void showFormulas(Panel& box, const std::vector<Formula>& formulas, std::span<const double> tops);

}  // namespace tavrune
