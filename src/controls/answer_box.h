#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <QLineEdit>

#include "controls/control.h"

namespace tavrune {

/// A field for a number. It takes any text of any length. A comma that is typed, on a keyboard or by an input
/// method, becomes a point, since answers are read with points; pasted text stays as it is. Enter is not
/// handled here but signalled to the form. Access keys write nothing.
class AnswerBox : public QLineEdit, public Control {
    Q_OBJECT

public:
    explicit AnswerBox(QWidget* parent = nullptr);

    /// Returns the number that the text spells, as `Val` reads it: 0 for an empty box.
    [[nodiscard]] double value() const;

    [[nodiscard]] std::string content() const { return text().toStdString(); }

    /// Sets the text, UTF-8. Commas in it stay commas.
    void setContent(std::string_view content);

    /// Marks the answer as wrong, red, or takes the mark away. Screen readers are told, too.
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

/// What they spell, in their order.
[[nodiscard]] std::vector<double> valuesOf(const std::vector<AnswerBox*>& boxes);

}  // namespace tavrune
