#pragma once

#include <QProxyStyle>

namespace tavrune {

/// How everything is drawn: the one style that takes the colours of state from the palette on every desktop,
/// with the marks of option buttons as large as their zoom asks for.
class DesignStyle : public QProxyStyle {
    Q_OBJECT

public:
    DesignStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace tavrune
