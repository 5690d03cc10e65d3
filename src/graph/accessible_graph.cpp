#include "graph/accessible_graph.h"

#include <algorithm>

#include <QAccessibleWidget>

#include "controls/accessible_controls.h"
#include "controls/label.h"
#include "controls/text.h"
#include "graph/description.h"
#include "graph/graph_box.h"

namespace tavrune {
namespace {

/// A graph tells what is drawn on it, put into words when somebody asks. One that carries other controls
/// than its numbers is a group: a frame round a graph, or a help panel.
class AccessibleGraph final : public QAccessibleWidget {
public:
    explicit AccessibleGraph(GraphBox* box) : QAccessibleWidget(box), box_(box) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return isGroup() ? QAccessible::Client : QAccessible::Chart;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Description && !isGroup()) {
            return fromUtf8(describe(box_->strokes(), box_->scale()));
        }
        return QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = state.invisible || isCovered(*box_);
        return state;
    }

private:
    [[nodiscard]] bool isGroup() const { return !box_->isChart(); }

    GraphBox* box_;
};

}  // namespace

QAccessibleInterface* accessibleGraph(const QString& /*className*/, QObject* object) {
    auto* const box = qobject_cast<GraphBox*>(object);
    return box == nullptr ? nullptr : new AccessibleGraph(box);
}

}  // namespace tavrune
