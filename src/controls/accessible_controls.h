#pragma once

#include <QAccessibleInterface>
#include <QWidget>

namespace tavrune {

/// Returns what screen readers are told about a label, panel, line, button or option; null for any other
/// object. For `QAccessible::installFactory`.
[[nodiscard]] QAccessibleInterface* accessibleControl(const QString& className, QObject* object);

/// Returns whether a cover, or another verdict, lies in front of the control, so that nobody can see it.
[[nodiscard]] bool isCovered(const QWidget& control);

}  // namespace tavrune
