#include "controls/design_style.h"

#include <QStyleFactory>

#include "controls/control.h"

namespace tavrune {

DesignStyle::DesignStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

int DesignStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
        case PM_RadioButtonLabelSpacing:
            if (const auto* const control = dynamic_cast<const Control*>(widget)) {
                return qRound(pixels * control->zoom());
            }
            return pixels;
        default:
            return pixels;
    }
}

}  // namespace tavrune
