#pragma once

#include <array>
#include <optional>

#include <QString>
#include <QWidget>

namespace tavrune {

/// The sizes of a page that are reached step by step, in percent of its design.
inline constexpr std::array kZoomSteps{100, 125, 150, 175, 200, 250, 300};

/// A page that fits its window is at most this many times as large as its design.
inline constexpr double kLargestFit = 4;

/// What a student has chosen: a size in percent of the design, 100 at first, or whatever fits the window.
class Zoom {
public:
    Zoom() = default;
    /// Precondition: it is above 0.
    explicit Zoom(int percent) : percent_(percent) {}
    [[nodiscard]] static Zoom fitted() { return Zoom(kFitted); }

    [[nodiscard]] bool isFitted() const { return percent_ == kFitted; }
    /// Precondition: it is not fitted.
    [[nodiscard]] int percent() const { return percent_; }
    [[nodiscard]] double factor() const { return percent_ / 100.0; }

    bool operator==(const Zoom&) const = default;

private:
    static constexpr int kFitted = 0;

    int percent_ = 100;
};

/// The step above or below a size that may lie between two steps; none beyond the last.
[[nodiscard]] std::optional<Zoom> largerThan(double factor);
[[nodiscard]] std::optional<Zoom> smallerThan(double factor);

/// As it is said: "200 procent", "tilpasset vinduet".
[[nodiscard]] QString wordsFor(Zoom zoom);

/// Sets the zoom of every control below `design`.
void zoomControls(const QWidget& design, double factor);

/// Sets the font of a menu, or of a menu bar, to that of the desktop, `factor` times as large.
void zoomMenu(QWidget& menu, double factor);

}  // namespace tavrune
