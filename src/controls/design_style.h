#pragma once

#include <QProxyStyle>

namespace tavrune {

/// How everything is drawn: the one style that takes the colours of state from the palette on every desktop,
/// with outlines and the marks of option buttons as large as their zoom asks for.
class DesignStyle : public QProxyStyle {
    Q_OBJECT

public:
    DesignStyle();

    /// The outlines of fields are of straight lines, a unit wide; two where the focus stands.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// Message boxes have plain words, on their buttons too.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace tavrune
