#include "controls/access_key.h"

#include <QShortcutEvent>

namespace tavrune {

bool clickedByAccessKey(QAbstractButton& button, QEvent* event) {
    if (event->type() != QEvent::Shortcut) {
        return false;
    }
    const auto* const key = static_cast<QShortcutEvent*>(event);
    if (key->isAmbiguous() || key->key() != button.shortcut()) {
        return false;
    }
    button.setFocus(Qt::ShortcutFocusReason);
    button.click();
    return true;
}

}  // namespace tavrune
