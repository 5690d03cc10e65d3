#pragma once

#include <array>
#include <functional>

#include <QWidget>

namespace tavrune {

/// The sizes that a page can have, in percent of its design.
inline constexpr std::array kZoomSteps{100, 125, 150, 175, 200, 250, 300};

/// One of the sizes, at first that of the design. The smallest has no smaller one, the largest no larger one.
class ZoomStep {
public:
    [[nodiscard]] ZoomStep larger() const {
        return ZoomStep(index_ + 1 < kZoomSteps.size() ? index_ + 1 : index_);
    }
    [[nodiscard]] ZoomStep smaller() const { return ZoomStep(index_ > 0 ? index_ - 1 : 0); }

    [[nodiscard]] int percent() const { return kZoomSteps.at(index_); }
    [[nodiscard]] double factor() const { return percent() / 100.0; }

    bool operator==(const ZoomStep&) const = default;

    ZoomStep() = default;

private:
    explicit ZoomStep(std::size_t index) : index_(index) {}

    std::size_t index_ = 0;
};

/// Sets the zoom of every control below `design`.
void zoomControls(const QWidget& design, ZoomStep step);

/// In `window`, Ctrl with plus, minus or 0 calls `zoom` with the next larger or smaller step after `current`,
/// or with that of the design.
void bindZoomKeys(QWidget* window, const std::function<ZoomStep()>& current,
                  const std::function<void(ZoomStep)>& zoom);

}  // namespace tavrune
