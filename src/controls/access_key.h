#pragma once

#include <QAbstractButton>
#include <QEvent>

namespace tavrune {

/// True if `event` was the button's access key, which has then clicked it: at once, where Qt would hold the
/// button down for a tenth of a second first. A key that a menu title has too is the button's.
[[nodiscard]] bool clickedByAccessKey(QAbstractButton& button, QEvent* event);

/// True if `event`, which has come to a menu bar, was an access key that a button in `window` has too: it has
/// clicked the button.
[[nodiscard]] bool clickedInsteadOfMenu(const QWidget& window, QEvent* event);

}  // namespace tavrune
