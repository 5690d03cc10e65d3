#include "controls/design_style.h"

#include <functional>
#include <utility>

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOption>

#include "controls/control.h"
#include "controls/voice.h"

namespace tavrune {
namespace {

const QColor kFieldOutline(128, 128, 128);

/// An icon that is loaded when something of it is first asked for.
class LateIcon final : public QIconEngine {
public:
    explicit LateIcon(std::function<QIcon()> load) : load_(std::move(load)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        icon().paint(painter, place, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().pixmap(size, 1, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return icon().availableSizes(mode, state);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new LateIcon(*this); }

private:
    const QIcon& icon() {
        if (icon_.isNull()) {
            icon_ = load_();
        }
        return icon_;
    }

    std::function<QIcon()> load_;
    QIcon icon_;
};

// As Fusion has them, in units.
constexpr double kButtonCorner = 2;
constexpr double kBesideFocusedText = 3;
constexpr double kOverFocusedText = 2;

/// Draws what fills an area as it is drawn in the design, with its outline, enlarged.
template <class Option>
void drawEnlarged(const QStyle& style, QStyle::PrimitiveElement element, const Option& option,
                  QPainter& painter, double zoom) {
    const QSizeF size = option.rect.size();
    Option design(option);
    design.rect = QRect(QPoint(), (size / zoom).toSize().expandedTo({1, 1}));
    painter.save();
    painter.translate(option.rect.topLeft());
    painter.scale(size.width() / design.rect.width(), size.height() / design.rect.height());
    style.drawPrimitive(element, &design, &painter);
    painter.restore();
}

/// Draws the outline of a button again, as wide as other outlines are.
void drawButtonOutline(const QStyleOption& option, QPainter& painter, double zoom) {
    const double width = wholePixels(*painter.device(), zoom);
    const QPalette& palette = option.palette;
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor plain = palette.color(QPalette::Window).darker(140);
    const QColor colour = option.state.testFlag(QStyle::State_HasFocus)
                              ? palette.color(QPalette::Highlight).darker(125)
                          : isEnabled ? plain
                                      : plain.lighter(115);
    QPainterPath ring;
    ring.addRoundedRect(option.rect, kButtonCorner, kButtonCorner);
    ring.addRect(QRectF(option.rect).adjusted(width, width, -width, -width));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(ring, colour);
    painter.restore();
}

/// Where QLineEdit has the baseline of a text, in a box of a height.
int baselineIn(int height, const QFont& font) {
    const QFontMetricsF exact(font);
    const int line = qMax(QFontMetrics(font).height(), qRound(exact.height()));
    return (height - line + 1) / 2 + qRound(exact.ascent());
}

/// How far down a field's text has to go to stand where the design has it.
int offDesign(const Control& field) {
    const int design = baselineIn(field.designSize().height(), field.unzoomedFont());
    const QWidget& box = *field.widget();
    return qRound((field.place().top() + design) * field.zoom()) - box.y() -
           baselineIn(box.height(), box.font());
}

}  // namespace

DesignStyle::DesignStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void DesignStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    const auto* const control = dynamic_cast<const Control*>(widget);
    if (element == PE_FrameLineEdit && control != nullptr) {
        const bool isFocused = option->state.testFlag(State_HasFocus);
        drawOutline(*painter, option->rect, (isFocused ? 2 : 1) * control->zoom(),
                    isFocused ? option->palette.color(QPalette::Highlight) : kFieldOutline);
        return;
    }
    const double zoom = control == nullptr ? 1 : control->zoom();
    const auto* const mark = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* const focus = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
    if (zoom != 1 && element == PE_IndicatorRadioButton && mark != nullptr) {
        drawEnlarged(*baseStyle(), element, *mark, *painter, zoom);
        return;
    }
    if (zoom != 1 && element == PE_FrameFocusRect && focus != nullptr) {
        const int beside = qRound(kBesideFocusedText * (zoom - 1));
        const int over = qRound(kOverFocusedText * (zoom - 1));
        QStyleOptionFocusRect larger(*focus);
        larger.rect = focus->rect.adjusted(-beside, -over, beside, over).intersected(widget->rect());
        drawEnlarged(*baseStyle(), element, larger, *painter, zoom);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (zoom != 1 && element == PE_PanelButtonCommand) {
        drawButtonOutline(*option, *painter, zoom);
    }
}

int DesignStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_MenuBar_AltKeyNavigation:
            // A screen reader's own way of listening to keys tears Alt and its letter apart, so that the menu
            // opens instead. F10 opens it as well.
            return Voice::instance().isHeard() ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
        case SH_MessageBox_TextInteractionFlags:
            return Qt::NoTextInteraction;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QRect DesignStyle::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const auto* const control = dynamic_cast<const Control*>(widget);
    const bool isLarger = control != nullptr && control->zoom() != 1;
    return isLarger && element == SE_LineEditContents ? rect.translated(0, offDesign(*control)) : rect;
}

QIcon DesignStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                const QWidget* widget) const {
    if (which != SP_ToolBarHorizontalExtensionButton) {
        return QProxyStyle::standardIcon(which, option, widget);
    }
    // The icon may outlive the style.
    const QPointer<const QStyle> base = baseStyle();
    return QIcon(new LateIcon([base, which] { return base.isNull() ? QIcon() : base->standardIcon(which); }));
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
