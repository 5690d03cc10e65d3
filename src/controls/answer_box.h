#pragma once

#include <string>
#include <string_view>

#include <QLineEdit>

#include "controls/control.h"

namespace tavrune {

/// A field for a typed number. Takes any text of any length. A typed comma becomes a point before it lands,
/// whichever way it is typed; pasted text is left alone. Enter is swallowed and told to the form. Access keys
/// write nothing.
class AnswerBox : public QLineEdit, public Control {
    Q_OBJECT

public:
    explicit AnswerBox(QWidget* parent = nullptr);

    /// What the text spells, by `Val`: 0 for an empty box.
    [[nodiscard]] double value() const;

    [[nodiscard]] std::string content() const { return text().toStdString(); }

    /// UTF-8; nothing is converted.
    void setContent(std::string_view content);

    /// Marks the answer as wrong, or takes the mark away. The box is red then, otherwise neutral white, and
    /// screen readers are told.
    void mark(bool wrong);
    [[nodiscard]] bool isMarked() const { return isMarked_; }

    [[nodiscard]] QColor backColour() const { return palette().color(QPalette::Base); }

signals:
    void enterPressed();

protected:
    void fontHasChanged() override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    bool isMarked_ = false;
};

}  // namespace tavrune
