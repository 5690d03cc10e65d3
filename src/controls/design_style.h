#pragma once

#include <QProxyStyle>

namespace tavrune {

/// How everything is drawn: as Qt's Fusion, which takes all colours from the palette on every desktop, but
/// with outlines and marks of option buttons that grow with the zoom.
class DesignStyle : public QProxyStyle {
    Q_OBJECT

public:
    DesignStyle();

    /// Draws the outlines of fields as straight lines, one unit wide, two in the field with the focus.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// Leaves the buttons of message boxes without icons; their text cannot be selected.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace tavrune
