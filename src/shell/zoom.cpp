#include "shell/zoom.h"

#include <algorithm>

#include <QApplication>

#include "controls/control.h"

namespace tavrune {

std::optional<Zoom> largerThan(double factor) {
    const auto* const step = std::find_if(kZoomSteps.begin(), kZoomSteps.end(),
                                          [factor](int percent) { return Zoom(percent).factor() > factor; });
    return step == kZoomSteps.end() ? std::nullopt : std::optional(Zoom(*step));
}

std::optional<Zoom> smallerThan(double factor) {
    const auto step = std::find_if(kZoomSteps.rbegin(), kZoomSteps.rend(),
                                   [factor](int percent) { return Zoom(percent).factor() < factor; });
    return step == kZoomSteps.rend() ? std::nullopt : std::optional(Zoom(*step));
}

QString wordsFor(Zoom zoom) {
    return zoom.isFitted() ? "tilpasset vinduet" : QString("%1 procent").arg(zoom.percent());
}

void zoomControls(const QWidget& design, double factor) {
    for (QWidget* widget : design.findChildren<QWidget*>()) {
        if (auto* const control = dynamic_cast<Control*>(widget)) {
            control->setZoom(factor);
        }
    }
}

void zoomMenu(QWidget& menu, double factor) {
    // The font of the desktop, whose size is in points or in pixels.
    QFont font = QApplication::font(&menu);
    if (font.pixelSize() == -1) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    }
    menu.setFont(font);
}

}  // namespace tavrune
