#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include <QString>

#include "app/pages.h"
#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/option_button.h"
#include "controls/panel.h"
#include "shell/exercise_form.h"

namespace tavrune::test {

/// Opens any page by its name, finds any control by its name, and does what a person does to it: keys and
/// clicks. A control that is not there fails the test at once.
class FormDriver {
public:
    /// Makes the page, shows it, and lets it open.
    FormDriver(PageName name, Draws& draws);

    /// Makes the page without showing it: its design state.
    static FormDriver unshown(PageName name, Draws& draws);

    ~FormDriver();
    FormDriver(FormDriver&&) = default;

    /// Shows the page and lets it open.
    void show();

    [[nodiscard]] Page& page() const { return *page_; }

    template <class Widget = QWidget>
    [[nodiscard]] Widget& find(const std::string& name) const {
        auto* const widget = page_->findChild<Widget*>(QString::fromStdString(name));
        if (widget == nullptr) {
            missing(name);
        }
        return *widget;
    }

    [[nodiscard]] Label& label(const std::string& name) const { return find<Label>(name); }
    [[nodiscard]] AnswerBox& box(const std::string& name) const { return find<AnswerBox>(name); }
    [[nodiscard]] Button& button(const std::string& name) const { return find<Button>(name); }
    [[nodiscard]] OptionButton& option(const std::string& name) const { return find<OptionButton>(name); }

    [[nodiscard]] std::string caption(const std::string& label) const { return this->label(label).caption(); }

    /// The control's own flag, whatever stands around it.
    [[nodiscard]] bool isShown(const std::string& name) const { return !find(name).isHidden(); }

    /// The name of the control that has the focus on this page; empty if none has.
    [[nodiscard]] std::string focus() const;

    /// True if the focus is in an answer box.
    [[nodiscard]] bool isFocusInABox() const {
        return page_->findChild<AnswerBox*>(QString::fromStdString(focus()));
    }

    /// The names of the answer boxes that are marked as wrong. Throws if one is not red then, or not white
    /// else.
    [[nodiscard]] std::set<std::string> redBoxes() const;

    /// Sets the texts of boxes, by their names, without a key.
    void fill(const std::map<std::string, std::string>& texts) const;

    /// Replaces the text of a box, key by key.
    void type(const std::string& box, const std::string& keys) const;
    void press(const std::string& control, Qt::Key key) const;
    void click(const std::string& control) const;

    /// The text of the message box that stands over the page, whose button is then pressed; empty if there is
    /// none.
    [[nodiscard]] std::string answerMessage() const;

private:
    FormDriver() = default;
    [[noreturn]] static void missing(const std::string& name);

    std::unique_ptr<Page> page_;
};

/// Lets everything happen that is due now.
void settle();

/// How a failure of the arithmetic ends the program.
struct ProgramEnd {
    std::string message;
    int status = 0;
};

/// Reads the message of a failure, presses its button, and lets the program end. An empty message if nothing
/// has failed.
[[nodiscard]] ProgramEnd readFailure();

}  // namespace tavrune::test
