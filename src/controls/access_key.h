#pragma once

#include <QAbstractButton>
#include <QEvent>

namespace tavrune {

/// True if `event` was the button's access key, which has then clicked it: at once, where Qt would hold the
/// button down for a tenth of a second first. A key that several controls share is left to Qt.
[[nodiscard]] bool clickedByAccessKey(QAbstractButton& button, QEvent* event);

}  // namespace tavrune
