#include "controls/accessible_controls.h"

#include <algorithm>

#include <QAccessibleWidget>
#include <QKeySequence>

#include "controls/button.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/option_button.h"
#include "controls/panel.h"

namespace tavrune {
namespace {

/// Returns whether a panel or label is empty: such a one is a cover for what lies behind it.
bool isBlank(const QWidget& widget) {
    if (const auto* const label = qobject_cast<const Label*>(&widget)) {
        return label->text().isEmpty();
    }
    const auto* const panel = qobject_cast<const Panel*>(&widget);
    return panel != nullptr && panel->findChild<QWidget*>() == nullptr;
}

bool isVerdict(const QWidget& widget) {
    const auto* const label = qobject_cast<const Label*>(&widget);
    return label != nullptr && label->isVerdict();
}

bool covers(const QWidget& front, const QWidget& back) {
    return front.isVisible() && front.autoFillBackground() &&
           front.geometry().contains(back.geometry().center()) &&
           (isBlank(front) || (isVerdict(front) && isVerdict(back)));
}

/// A control that screen readers skip if it is only to be looked at, or if it is covered.
class AccessibleShape : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = state.invisible || isOrnament() || isCovered(*widget());
        return state;
    }

protected:
    [[nodiscard]] virtual bool isOrnament() const { return isBlank(*widget()); }
};

class AccessibleLine final : public AccessibleShape {
public:
    explicit AccessibleLine(LineControl* line) : AccessibleShape(line, QAccessible::Graphic) {}

protected:
    [[nodiscard]] bool isOrnament() const override { return true; }
};

class AccessiblePanel final : public AccessibleShape {
public:
    explicit AccessiblePanel(Panel* panel) : AccessibleShape(panel, QAccessible::Grouping) {}
};

class AccessibleLabel final : public AccessibleShape {
public:
    explicit AccessibleLabel(Label* label) : AccessibleShape(label), label_(label) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return label_->isVerdict() ? QAccessible::Notification : QAccessible::StaticText;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name && label_->accessibleName().isEmpty()) {
            return words();
        }
        return AccessibleShape::text(kind);
    }

protected:
    [[nodiscard]] bool isOrnament() const override {
        return label_->isDecorative() || label_->text().isEmpty() || text(QAccessible::Name).isEmpty();
    }

private:
    [[nodiscard]] QString words() const {
        // Captions have wide gaps where other labels with numbers lie.
        const QString caption = label_->text().simplified();
        if (label_->font().underline() && caption == "<") {
            return "≤";
        }
        return label_->font().underline() && caption == ">" ? "≥" : caption;
    }

    Label* label_;
};

/// A button or an option. Its action is a click; the action that Qt has for an option would choose it without
/// running what a click runs.
class AccessibleButton final : public QAccessibleWidget {
public:
    AccessibleButton(QAbstractButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role), button_(button) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name && button_->accessibleName().isEmpty()) {
            return button_->text().remove('&');
        }
        if (kind == QAccessible::Accelerator) {
            return button_->shortcut().toString(QKeySequence::NativeText);
        }
        return QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = button_->isDown();
        state.checkable = button_->isCheckable();
        state.checked = button_->isChecked();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button_->isEnabled()) {
            names.prepend(clickAction());
        }
        return names;
    }

    void doAction(const QString& name) override {
        if (name == clickAction()) {
            button_->click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override {
        if (name == clickAction() && !button_->shortcut().isEmpty()) {
            return {button_->shortcut().toString(QKeySequence::NativeText)};
        }
        return QAccessibleWidget::keyBindingsForAction(name);
    }

private:
    [[nodiscard]] QString clickAction() const {
        return button_->isCheckable() ? toggleAction() : pressAction();
    }

    QAbstractButton* button_;
};

}  // namespace

QAccessibleInterface* accessibleControl(const QString& /*className*/, QObject* object) {
    if (auto* const label = qobject_cast<Label*>(object)) {
        return new AccessibleLabel(label);
    }
    if (auto* const line = qobject_cast<LineControl*>(object)) {
        return new AccessibleLine(line);
    }
    if (auto* const panel = qobject_cast<Panel*>(object)) {
        return new AccessiblePanel(panel);
    }
    if (auto* const button = qobject_cast<Button*>(object)) {
        return new AccessibleButton(button, QAccessible::Button);
    }
    if (auto* const option = qobject_cast<OptionButton*>(object)) {
        return new AccessibleButton(option, QAccessible::RadioButton);
    }
    return nullptr;
}

bool isCovered(const QWidget& control) {
    const QWidget* const parent = control.parentWidget();
    if (parent == nullptr) {
        return false;
    }
    // Later siblings lie in front.
    const QObjectList& siblings = parent->children();
    const auto self = std::find(siblings.begin(), siblings.end(), &control);
    return self != siblings.end() &&
           std::any_of(self + 1, siblings.end(), [&control](const QObject* sibling) {
               const auto* const front = qobject_cast<const QWidget*>(sibling);
               return front != nullptr && covers(*front, control);
           });
}

}  // namespace tavrune
