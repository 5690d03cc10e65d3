#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/line_control.h"
#include "controls/option_button.h"
#include "controls/panel.h"
#include "shell/page.h"

namespace tavrune::test {

/// All controls of a kind that are in sight in a window, in the order of its design.
template <class Widget>
[[nodiscard]] std::vector<Widget*> inSight(const QWidget& window) {
    std::vector<Widget*> found;
    for (Widget* widget : window.findChildren<Widget*>()) {
        if (widget->isVisible() && dynamic_cast<Control*>(widget) != nullptr) {
            found.push_back(widget);
        }
    }
    return found;
}

[[nodiscard]] std::string nameOf(const QWidget& widget);

/// What "&Giv svaret" shows: the right option, if there are any, and what stands in the boxes in sight.
struct Answer {
    std::string option;
    std::map<std::string, std::string> boxes;
};

/// No exercise's answer, another for each place: no quotient of them is a small number either.
[[nodiscard]] std::string wrongText(int place);

/// True for a box of a help table, which is nobody's answer.
[[nodiscard]] bool isOfHelpTable(const AnswerBox& box);

/// Where a control is clicked. An option on its mark: the far end of its text may be bare ground.
[[nodiscard]] QPoint middleOf(const QWidget& control);

/// Somebody in front of a page: sees what is in sight, and does to it, found by its name, what can be done by
/// keys and clicks. A control that is not there fails the test at once. Precondition: the page outlives the
/// student.
class Student {
public:
    explicit Student(Page& page) : at_(&page) {}

    [[nodiscard]] Page& page() const { return *at_; }

    template <class Widget = QWidget>
    [[nodiscard]] Widget& find(const std::string& name) const {
        auto* const widget = at_->findChild<Widget*>(QString::fromStdString(name));
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
        return at_->findChild<AnswerBox*>(QString::fromStdString(focus()));
    }

    [[nodiscard]] std::vector<AnswerBox*> boxes() const { return inSight<AnswerBox>(*at_); }

    /// Those that can be pressed.
    [[nodiscard]] std::vector<Button*> buttons() const;

    /// The names of the answer boxes that are marked as wrong. Throws if one is not red then, or not white
    /// else.
    [[nodiscard]] std::set<std::string> redBoxes() const;

    /// "RIGTIGT" or "FORKERT", whichever stands in front; empty if neither does.
    [[nodiscard]] std::string verdict() const;

    /// The names of the help panels that are open.
    [[nodiscard]] std::set<std::string> helpPanels() const;

    /// The button that closes the help that is open; none if none is.
    [[nodiscard]] Button* closeButton() const;

    /// The next "Vis" that can be pressed and is not among `pressed`, that with the focus before all others;
    /// none if there is no more.
    [[nodiscard]] Button* nextStep(const std::set<const Button*>& pressed) const;

    /// What a given answer tells: of the options the green one, or else the one that is chosen.
    [[nodiscard]] Answer answerShown() const;

    /// Sets the texts of boxes, by their names, without a key.
    void fill(const std::map<std::string, std::string>& texts) const;

    /// The same for every box in sight.
    void fillAll(const std::string& text) const;

    /// Replaces the text of a box, key by key.
    void type(const std::string& box, const std::string& keys) const;
    void press(const std::string& control, Qt::Key key) const;

    /// One after the other.
    template <class... More>
    void click(const std::string& control, const More&... more) const {
        clickOne(control);
        (clickOne(more), ...);
    }

    /// Chooses the option, if one is named, types into every box in sight what is no exercise's answer, and
    /// presses "&OK".
    void answerWrongly(const std::string& option = "") const;

    /// Fails once, has the answer given, and reads it.
    [[nodiscard]] Answer giveUp(const std::string& option = "") const;

    /// Chooses and types an answer as it was shown, but for help tables. A box that it does not name keeps
    /// what it holds.
    void write(const Answer& answer) const;

    /// Presses every "Vis" but `butFor`, those that come up by it included.
    void showAllSteps(const std::string& butFor = "") const;

    /// The text of the message box that stands over the page, whose button is then pressed; empty if there is
    /// none.
    [[nodiscard]] std::string answerMessage() const;

private:
    void clickOne(const std::string& control) const;
    [[noreturn]] static void missing(const std::string& name);

    Page* at_;
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
