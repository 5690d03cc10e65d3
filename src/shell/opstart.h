#pragma once

#include <QSize>

#include "shell/page.h"

namespace tavrune {

/// How far the start page is stretched to fit a screen; it is designed for one of 640 by 480 units.
struct ScreenStretch {
    double x;
    double y;
    /// For the size of the texts: largest at x = 3. At x = 6 and above the formula gives 0 or less; then it
    /// is 1, the size of the design.
    double text;
};

/// Returns the stretch for a screen of a size in units. {800, 600} -> {1.25, 1.25, 1.1875}
[[nodiscard]] ScreenStretch stretchFor(QSize screen);

/// The start page: a greeting and the way into the topics.
class Opstart : public Page {
    Q_OBJECT

public:
    explicit Opstart(QSize screen);
};

}  // namespace tavrune
