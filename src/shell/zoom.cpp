#include "shell/zoom.h"

#include <QShortcut>

#include "controls/control.h"

namespace tavrune {

void zoomControls(const QWidget& design, ZoomStep step) {
    for (QWidget* widget : design.findChildren<QWidget*>()) {
        if (auto* const control = dynamic_cast<Control*>(widget)) {
            control->setZoom(step.factor());
        }
    }
}

void bindZoomKeys(QWidget* window, const std::function<ZoomStep()>& current,
                  const std::function<void(ZoomStep)>& zoom) {
    const auto bind = [window](const QList<QKeySequence>& keys, const std::function<void()>& action) {
        for (const QKeySequence& key : keys) {
            auto* const shortcut = new QShortcut(key, window);
            QObject::connect(shortcut, &QShortcut::activated, window, action);
        }
    };
    // On keyboards with plus above the equals sign nobody has to hold Shift.
    bind({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")}, [current, zoom] { zoom(current().larger()); });
    bind({QKeySequence("Ctrl+-")}, [current, zoom] { zoom(current().smaller()); });
    bind({QKeySequence("Ctrl+0")}, [zoom] { zoom(ZoomStep()); });
}

}  // namespace tavrune
