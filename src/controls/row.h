#pragma once

#include <initializer_list>
#include <vector>

#include "controls/label.h"

namespace tavrune {

/// Places labels side by side from `left` on, each as wide as its text, with `gap` units between two. Labels
/// without text take no room; hidden labels are placed like shown ones. Returns the right edge of the last.
double layOutRow(const std::vector<Label*>& labels, double left, double gap = 0);

/// As `layOutRow`, from the left edge of the first label. Precondition: there is one.
double layOutFromFirst(const std::vector<Label*>& labels, double gap = 0);

/// Returns the labels of a page whose names are `prefix` and one of `names`, in the order of these.
/// Precondition: all of them are on the page.
[[nodiscard]] std::vector<Label*> labelsOf(const QWidget& page, const QString& prefix,
                                           std::initializer_list<const char*> names);

}  // namespace tavrune
