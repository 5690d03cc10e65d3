#pragma once

#include <QAccessibleInterface>
#include <QWidget>

#include "controls/reading.h"

namespace tavrune {

class Label;

/// Returns what screen readers are told about a label, panel, line, button or option; null for any other
/// object. For `QAccessible::installFactory`.
[[nodiscard]] QAccessibleInterface* accessibleControl(const QString& className, QObject* object);

/// Returns whether something lies in front of the control, or of what holds it, so that nobody can see it: a
/// cover, an open panel, a graph or another verdict.
[[nodiscard]] bool isCovered(const QWidget& control);

/// True if the control is on the screen, as far as the page decides it.
[[nodiscard]] bool isSeen(const QWidget& control);

/// As long as one lives, nothing on any page changes: what has been found out once need not be found out
/// again. They do not stand in each other.
class StillPages {
public:
    StillPages();
    ~StillPages();
    StillPages(const StillPages&) = delete;
    StillPages& operator=(const StillPages&) = delete;

    /// Another number for each; 0 while none lives.
    [[nodiscard]] static int current() { return current_; }

private:
    static int current_;
};

/// The texts that are seen in what holds labels, its panels and graphs not entered, without a verdict. Good
/// until the next call.
[[nodiscard]] const std::vector<Passage>& passagesOf(const QWidget& region);

/// What a label says: the whole of which it is the first piece, "TVC lig med a Q i tredje"; nothing if it is
/// a later piece, or for the eye alone.
[[nodiscard]] QString wordsOf(const Label& label);

}  // namespace tavrune
