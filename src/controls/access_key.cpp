#include "controls/access_key.h"

#include <algorithm>

#include <QShortcutEvent>

#include "controls/voice.h"

namespace tavrune {

bool clickedByAccessKey(QAbstractButton& button, QEvent* event) {
    if (event->type() != QEvent::Shortcut) {
        return false;
    }
    const auto* const key = static_cast<QShortcutEvent*>(event);
    if (key->key() != button.shortcut()) {
        return false;
    }
    // The button has the focus for a moment only, where the click moves it on.
    const Voice::Round round;
    button.setFocus(Qt::ShortcutFocusReason);
    button.click();
    return true;
}

bool clickedInsteadOfMenu(const QWidget& window, QEvent* event) {
    if (event->type() != QEvent::Shortcut || !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        return false;
    }
    const QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
    return std::any_of(buttons.begin(), buttons.end(), [event](QAbstractButton* button) {
        return button->isVisible() && button->isEnabled() && clickedByAccessKey(*button, event);
    });
}

}  // namespace tavrune
