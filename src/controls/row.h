#pragma once

#include <initializer_list>

#include "controls/label.h"

namespace tavrune {

/// Sets labels side by side from `left` on, each as wide as its text: a label begins where the one before
/// ends, plus `gap`. Hidden labels take part like any other; empty ones take no room. Gives the right edge of
/// the last.
double layOutRow(std::initializer_list<Label*> labels, double left, double gap = 0);

}  // namespace tavrune
