#include "controls/design_style.h"

#include <QAccessible>
#include <QStyleFactory>

#include "controls/control.h"

namespace tavrune {
namespace {

const QColor kFieldOutline(128, 128, 128);

}  // namespace

DesignStyle::DesignStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void DesignStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    const auto* const control = dynamic_cast<const Control*>(widget);
    if (element != PE_FrameLineEdit || control == nullptr) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const bool isFocused = option->state.testFlag(State_HasFocus);
    drawOutline(*painter, option->rect, (isFocused ? 2 : 1) * control->zoom(),
                isFocused ? option->palette.color(QPalette::Highlight) : kFieldOutline);
}

int DesignStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_MenuBar_AltKeyNavigation:
            // A screen reader's own way of listening to keys tears Alt and its letter apart, so that the menu
            // opens instead. F10 opens it as well.
            return QAccessible::isActive() ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
        case SH_MessageBox_TextInteractionFlags:
            return Qt::NoTextInteraction;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

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
