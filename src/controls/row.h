#pragma once

#include <initializer_list>
#include <vector>

#include "controls/label.h"

namespace tavrune {

/// Sets labels side by side from `left` on, each as wide as its text: a label begins where the one before
/// ends, plus `gap`. Hidden labels take part like any other; empty ones take no room. Gives the right edge of
/// the last.
double layOutRow(const std::vector<Label*>& labels, double left, double gap = 0);

/// As `layOutRow`, from where the first of the labels stands. There must be one.
double layOutFromFirst(const std::vector<Label*>& labels, double gap = 0);

/// The labels of a page that are called `prefix` and one of the names, in the order of these. All of them
/// must be on the page.
[[nodiscard]] std::vector<Label*> labelsOf(const QWidget& page, const QString& prefix,
                                           std::initializer_list<const char*> names);

}  // namespace tavrune
