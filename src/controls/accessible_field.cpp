#include "controls/accessible_field.h"

#include <algorithm>

#include <QAccessibleWidget>

#include "controls/accessible_controls.h"

namespace tavrune {
namespace {

/// Qt's own tells of fields under a panel as if they could be seen, and cannot be derived from.
class AccessibleField final : public QAccessibleWidget,
                              public QAccessibleTextInterface,
                              public QAccessibleEditableTextInterface {
public:
    explicit AccessibleField(AnswerBox* box) : QAccessibleWidget(box, QAccessible::EditableText), box_(box) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? box_->text() : QAccessibleWidget::text(kind);
    }
    void setText(QAccessible::Text kind, const QString& text) override {
        if (kind == QAccessible::Value) {
            replaceText(0, characterCount(), text);
        }
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.selectableText = true;
        state.invisible = state.invisible || isCovered(*box_);
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) {
            return static_cast<QAccessibleTextInterface*>(this);
        }
        if (type == QAccessible::EditableTextInterface) {
            return static_cast<QAccessibleEditableTextInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }

    // The text.
    void selection(int index, int* start, int* end) const override {
        const bool isThere = index == 0 && box_->hasSelectedText();
        *start = isThere ? box_->selectionStart() : 0;
        *end = isThere ? box_->selectionEnd() : 0;
    }
    [[nodiscard]] int selectionCount() const override { return box_->hasSelectedText() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int /*index*/) override { box_->deselect(); }
    void setSelection(int index, int start, int end) override {
        if (index == 0) {
            box_->setSelection(within(start), within(end) - within(start));
        }
    }
    [[nodiscard]] int cursorPosition() const override { return box_->cursorPosition(); }
    void setCursorPosition(int position) override { box_->setCursorPosition(within(position)); }
    [[nodiscard]] QString text(int start, int end) const override {
        return box_->text().mid(within(start), std::max(0, within(end) - within(start)));
    }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(box_->text().size()); }
    /// There is but one line; Qt's own way of finding lines leaves its last character out.
    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                         int* end) const override {
        const bool isWhole = type == QAccessible::LineBoundary || type == QAccessible::ParagraphBoundary ||
                             type == QAccessible::SentenceBoundary || type == QAccessible::NoBoundary;
        if (!isWhole) {
            return QAccessibleTextInterface::textAtOffset(offset, type, start, end);
        }
        *start = 0;
        *end = characterCount();
        return box_->text();
    }
    [[nodiscard]] QRect characterRect(int offset) const override {
        const QFontMetrics metrics = box_->fontMetrics();
        const int left = metrics.horizontalAdvance(box_->text().left(within(offset)));
        const int width = metrics.horizontalAdvance(text(offset, offset + 1));
        const QRect field = box_->rect().marginsRemoved(box_->textMargins());
        return {box_->mapToGlobal(QPoint(field.left() + left, field.top())), QSize(width, field.height())};
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override {
        return box_->cursorPositionAt(box_->mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int end) override { setSelection(0, start, end); }
    [[nodiscard]] QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

    // Typing.
    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override {
        QString whole = box_->text();
        whole.replace(within(start), std::max(0, within(end) - within(start)), text);
        box_->setText(whole);
    }

private:
    /// A reader may ask for any place.
    [[nodiscard]] int within(int offset) const { return std::clamp(offset, 0, characterCount()); }

    AnswerBox* box_;
};

}  // namespace

QAccessibleInterface* accessibleField(AnswerBox* box) { return new AccessibleField(box); }

}  // namespace tavrune
