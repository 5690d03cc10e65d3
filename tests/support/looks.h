#pragma once

#include <string>
#include <vector>

#include <QWidget>

namespace tavrune::test {

/// What is wrong with how a page, or any window, looks now, a sentence each: a visible text that is cut off,
/// leaves its parent or the page, or lies over another. Empty if all is well.
[[nodiscard]] std::vector<std::string> flawsOf(const QWidget& window);

}  // namespace tavrune::test
