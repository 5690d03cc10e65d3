#pragma once

#include <array>
#include <functional>

#include <QWidget>

namespace tavrune {

/// The sizes that a page can have, in percent of its design.
inline constexpr std::array kZoomSteps{100, 125, 150, 175, 200, 250, 300};

/// One of the sizes. It starts at the design's own and stays within the list.
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

/// Scales every control below `design`.
void zoomControls(const QWidget& design, ZoomStep step);

/// In `window`, Ctrl and plus, minus or 0 run `zoom` with the step that they ask for, counted from `current`.
void bindZoomKeys(QWidget* window, const std::function<ZoomStep()>& current,
                  const std::function<void(ZoomStep)>& zoom);

}  // namespace tavrune
