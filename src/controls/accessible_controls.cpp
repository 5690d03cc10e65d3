#include "controls/accessible_controls.h"

#include <algorithm>
#include <map>

#include <QAccessibleWidget>
#include <QHash>
#include <QKeySequence>
#include <QPointer>

#include "controls/accessible_field.h"
#include "controls/button.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/option_button.h"
#include "controls/panel.h"
#include "controls/reading.h"
#include "controls/voice.h"

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

/// A text lies over another only where both are verdicts.
bool covers(const QWidget& front, const QWidget& back) {
    const bool isText = qobject_cast<const Label*>(&front) != nullptr && !isBlank(front);
    return front.isVisible() && front.autoFillBackground() &&
           front.geometry().contains(back.geometry().center()) &&
           (!isText || (isVerdict(front) && isVerdict(back)));
}

bool isBehindASibling(const QWidget& control) {
    // A later sibling lies in front.
    const QObjectList& siblings = control.parentWidget()->children();
    const auto self = std::find(siblings.begin(), siblings.end(), &control);
    return self != siblings.end() &&
           std::any_of(self + 1, siblings.end(), [&control](const QObject* sibling) {
               const auto* const front = qobject_cast<const QWidget*>(sibling);
               return front != nullptr && covers(*front, control);
           });
}

/// All that can be read, but for the verdict, which is announced with more words.
bool isText(const QWidget& widget) { return isSeen(widget) && !isVerdict(widget); }

/// The passages of what holds a label, made anew once something on it has changed.
class Passages {
public:
    /// Those of `region`. For the next call or the next change only.
    [[nodiscard]] static const std::vector<Passage>& of(const QWidget& region) {
        static std::map<QPointer<const QWidget>, Passages> known;
        std::erase_if(known, [](const auto& each) { return each.first.isNull(); });
        Passages& its = known[&region];
        if (StillPages::current() != 0 && its.still_ == StillPages::current()) {
            return its.all_;
        }
        its.still_ = StillPages::current();
        if (const std::size_t now = printOf(region); its.print_ != now) {
            its.print_ = now;
            its.all_ = passages(region, isText);
        }
        return its.all_;
    }

private:
    std::size_t print_{};
    int still_{};
    std::vector<Passage> all_;

    static std::size_t printOf(const QWidget& region) {
        std::size_t print{};
        for (const QObject* child : region.children()) {
            if (const auto* const widget = qobject_cast<const QWidget*>(child)) {
                const QRect place = widget->geometry();
                const auto* const label = qobject_cast<const Label*>(widget);
                // The control itself too: one that looks the same may have come in place of another.
                print = qHashMulti(print, widget, widget->isVisible(), place.x(), place.y(), place.width(),
                                   place.height(), widget->accessibleName(), widget->font().underline(),
                                   label == nullptr ? QString() : label->text());
            }
        }
        return print;
    }
};

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
    /// As a group it would have all of its texts read whenever the focus comes into it.
    explicit AccessiblePanel(Panel* panel) : AccessibleShape(panel, QAccessible::Client) {}
};

class AccessibleLabel final : public AccessibleShape {
public:
    explicit AccessibleLabel(Label* label) : AccessibleShape(label), label_(label) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::StaticText; }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? wordsOf(*label_) : AccessibleShape::text(kind);
    }

protected:
    [[nodiscard]] bool isOrnament() const override { return wordsOf(*label_).isEmpty(); }

private:
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
        state.invisible = state.invisible || isCovered(*button_);
        return state;
    }

    /// The title of a group is told as the focus comes into it, and not again with each of its options.
    [[nodiscard]] QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override {
        return QAccessibleWidget::relations(match & ~QAccessible::Relation(QAccessible::Label));
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
    if (auto* const announcements = qobject_cast<Announcements*>(object)) {
        return new QAccessibleWidget(announcements, QAccessible::StatusBar);
    }
    if (qobject_cast<Announcements*>(object->parent()) != nullptr) {
        return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Notification);
    }
    if (auto* const box = qobject_cast<AnswerBox*>(object)) {
        return accessibleField(box);
    }
    if (auto* const button = qobject_cast<Button*>(object)) {
        return new AccessibleButton(button, QAccessible::Button);
    }
    if (auto* const option = qobject_cast<OptionButton*>(object)) {
        return new AccessibleButton(option, QAccessible::RadioButton);
    }
    return nullptr;
}

int StillPages::current_ = 0;

StillPages::StillPages() {
    static int last{};
    current_ = ++last;
}

StillPages::~StillPages() { current_ = 0; }

bool isCovered(const QWidget& control) {
    for (const QWidget* branch = &control; !branch->isWindow(); branch = branch->parentWidget()) {
        if (isBehindASibling(*branch)) {
            return true;
        }
    }
    return false;
}

bool isSeen(const QWidget& control) { return control.isVisible() && !isCovered(control); }

const std::vector<Passage>& passagesOf(const QWidget& region) { return Passages::of(region); }

QString wordsOf(const Label& label) {
    if (label.isVerdict()) {
        return label.accessibleName().isEmpty() ? label.text() : label.accessibleName();
    }
    const QWidget* const region = label.parentWidget();
    if (region != nullptr && isSeen(label)) {
        for (const Passage& passage : Passages::of(*region)) {
            if (passage.lead == &label) {
                return passage.words;
            }
            if (std::find(passage.pieces.begin(), passage.pieces.end(), &label) != passage.pieces.end()) {
                return {};
            }
        }
    }
    return label.isDecorative()               ? QString()
           : label.accessibleName().isEmpty() ? label.text().simplified()
                                              : label.accessibleName();
}

}  // namespace tavrune
