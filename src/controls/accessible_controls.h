#pragma once

#include <QAccessibleInterface>
#include <QWidget>

namespace tavrune {

/// What a screen reader is told of labels, panels, lines, buttons and options; null for everything else. To
/// be given to `QAccessible::installFactory`.
[[nodiscard]] QAccessibleInterface* accessibleControl(const QString& className, QObject* object);

/// True if nobody can see the control, though it is shown: a cover lies in front of it, or another verdict.
[[nodiscard]] bool isCovered(const QWidget& control);

}  // namespace tavrune
