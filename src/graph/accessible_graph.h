#pragma once

#include <QAccessibleInterface>

namespace tavrune {

/// What a screen reader is told of graph boxes; null for everything else. To be given to
/// `QAccessible::installFactory`.
[[nodiscard]] QAccessibleInterface* accessibleGraph(const QString& className, QObject* object);

}  // namespace tavrune
