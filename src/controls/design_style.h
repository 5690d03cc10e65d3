#pragma once

#include <QIcon>
#include <QProxyStyle>

namespace tavrune {

/// How everything is drawn: as Qt's Fusion, which takes all colours from the palette on every desktop, but
/// with outlines and marks of option buttons that grow with the zoom.
class DesignStyle : public QProxyStyle {
    Q_OBJECT

public:
    DesignStyle();

    /// Draws the outlines of fields as straight lines, one unit wide, two in the field with the focus; marks
    /// of options, and what shows the focus at one, with outlines that grow too.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// Leaves the buttons of message boxes without icons; their text cannot be selected.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    /// Keeps the text of fields where it is in the design, beside other texts, at every zoom.
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    /// Gives the icon of what a menu bar has no room for, which is seldom seen, without loading it yet.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace tavrune
