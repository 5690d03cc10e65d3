#pragma once

#include <QAbstractButton>
#include <QEvent>

namespace tavrune {

/// If `event` is the access key of the button, clicks it. Returns whether it did. Qt would hold the button
/// down for a tenth of a second first, and would do nothing if a menu title has the same key.
[[nodiscard]] bool clickedByAccessKey(QAbstractButton& button, QEvent* event);

/// If `event`, sent to a menu bar, is an access key that a button in `window` has too, clicks the button.
/// Returns whether it did.
[[nodiscard]] bool clickedInsteadOfMenu(const QWidget& window, QEvent* event);

}  // namespace tavrune
