#pragma once

#include <string>
#include <vector>

#include <QWidget>

namespace tavrune::test {

/// What is wrong with how a page, or any window, looks now, a sentence each: a visible text that is cut off,
/// leaves its parent or the page, lies over another, or, where the window is zoomed, stands higher or lower
/// than its design has it. Empty if all is well.
[[nodiscard]] std::vector<std::string> flawsOf(const QWidget& window);

/// The boxes of which the content is longer than they are, with it. What is typed may be; what a program
/// shows must not.
[[nodiscard]] std::vector<std::string> overfullBoxesOf(const QWidget& window);

/// The sizes that a window can have, in device-independent pixels, on screens that students have.
[[nodiscard]] std::vector<QSize> commonScreens();

/// How many exercises to look at: `full`, or the share of it that TAVRUNE_LOOKS asks for in percent. Fewer
/// are enough for slow builds and for runs that repeat what has been looked at; a search takes more.
[[nodiscard]] int looks(int full);

}  // namespace tavrune::test
