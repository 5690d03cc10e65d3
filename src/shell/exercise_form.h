#pragma once

#include <functional>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/label.h"
#include "numeric/draws.h"
#include "shell/failure.h"
#include "shell/page.h"

namespace tavrune {

/// Shows, or hides, all of them.
void showAll(std::initializer_list<QWidget*> widgets);
void hideAll(std::initializer_list<QWidget*> widgets);
void setShown(bool shown, std::initializer_list<QWidget*> widgets);

/// What Enter does in the last box of a chain: "&OK" if it is shown; else nothing, or "&Ny opgave".
enum class LastBox { OkOrStay, OkOrNewExercise };

/// The life cycle that all exercise forms share. It knows the controls that it moves by their names, which
/// are the same on every form; a form says, in the hooks, what is particular to it.
///
/// | Name | What |
/// |---|---|
/// | `newExercise`, `ok`, `giveAnswer`, `help` | the four standing buttons |
/// | `verdict`, or `right` and `wrong` | one label that gets caption and colour at each judging; or two at
/// one place with fixed ones, of which judging shows one. A `wrong` that the design gives a colour has it
/// until the first exercise | | `helpPanel`, `closeHelp` | the help and its "Luk", where a form has one help
/// for all its exercises |
///
///     Loaded --opening--> Asking --judge--> Wrong or Solved; --give the answer--> Given
///
/// "&Ny opgave" leads from every state to Asking. Panels are open or closed beside all of this.
class ExerciseForm : public Page {
    Q_OBJECT

public:
    ExerciseForm(PageName name, Draws& draws);

    /// Who is told of a failure of the arithmetic that ends an action, for as long as the form lives. It is
    /// thrown on while there is none, as at first, or it is null.
    void setFailureHandler(FailureHandler* handler) { failureHandler_ = handler; }

signals:
    /// A verdict has come, in the words that screen readers say: with the names of the fields that are wrong.
    void announced(const QString& words);

protected:
    /// Fills the design area from a designer file and binds the roles. Throws std::logic_error with the names
    /// of the form and the control where one is missing.
    template <class Ui>
    void setUp(Ui& ui) {
        Page::setUp(ui);
        bindRoles();
    }
    void bindRoles();

    // For the constructor, once the roles are bound.
    /// Enter goes from each box to the next; from the last as `last` says.
    void enterChain(const std::vector<AnswerBox*>& boxes, LastBox last);

    /// As `enterChain`, where not all boxes are always shown: before a hidden box, too, Enter goes as `last`
    /// says.
    void enterChainWhileShown(const std::vector<AnswerBox*>& boxes, LastBox last);

    /// Enter goes from `box` to the first of `candidates` that is shown, or nowhere. A later call for the
    /// same box replaces an earlier one.
    void enterGoes(AnswerBox* box, std::vector<QWidget*> candidates);

    /// The targets of a last box.
    [[nodiscard]] std::vector<QWidget*> after(LastBox last) const;

    /// Runs `action` at each click on `button`.
    void onClick(QAbstractButton* button, std::function<void()> action);
    template <class Form>
    void onClick(QAbstractButton* button, void (Form::*action)()) {
        onClick(button, [this, action] { (static_cast<Form*>(this)->*action)(); });
    }

    // The hooks.
    /// Before the form is on screen.
    virtual void loadStep() {}
    /// Once, as soon as the form is on screen. The base gives "FORKERT" its final colour, then the first
    /// exercise.
    virtual void opened();
    virtual void newExercise() = 0;
    virtual void judge() = 0;
    virtual void giveAnswer() = 0;
    virtual void help() = 0;
    /// "Luk" in the help panel. The base hides the panel.
    virtual void closeHelp();

    // Steps that the hooks are made of.
    /// White and empty.
    static void clearBoxes(std::initializer_list<AnswerBox*> boxes);
    static void whiten(std::initializer_list<AnswerBox*> boxes);
    /// "&OK" on, "&Giv svaret" off, no verdict.
    void showAsking();
    void hideVerdict();
    /// "RIGTIGT" is shown. Kept (shell-forkert-behind): "FORKERT" is not hidden by it in a two-label form.
    void showRight();
    void showWrong();
    /// Right: the verdict, no "&OK" and no "&Giv svaret", focus to "&Ny opgave".
    void solved();
    /// Wrong: the verdict, "&OK" and "&Giv svaret" shown. The focus is the form's.
    void failed();
    /// Given: no verdict, no "&OK" and no "&Giv svaret", focus to "&Ny opgave".
    void given();
    void giveFinalWrongColour();

    /// Shows a panel and gives the focus to its first "Vis".
    static void openPanel(QWidget* panel, QWidget* firstVis);
    /// The help panel, where a form has one.
    [[nodiscard]] QWidget* helpPanel() const { return helpPanel_; }

    [[nodiscard]] Draws& draws() { return draws_; }

    void showEvent(QShowEvent* event) override;

private:
    /// Runs an action of the form. A failure ends it.
    void run(const std::function<void()>& action);
    [[nodiscard]] bool hasOneLabel() const { return right_ == wrong_; }
    /// The control of a role. Throws std::logic_error where there is none.
    template <class Widget>
    [[nodiscard]] Widget* role(const char* name) const;
    void bindVerdict();
    /// Judges, and announces the verdict, if there is one.
    void judgeAloud();
    void announce(Label* verdict, const QString& words);
    /// The names of the boxes that are marked as wrong for all to see, in reading order.
    [[nodiscard]] QStringList wrongFields() const;

    Draws& draws_;
    FailureHandler* failureHandler_ = nullptr;
    struct {
        Button* newExercise = nullptr;
        Button* ok = nullptr;
        Button* giveAnswer = nullptr;
    } buttons_;
    /// One and the same label where there is but one.
    Label* right_ = nullptr;
    Label* wrong_ = nullptr;
    QWidget* helpPanel_ = nullptr;
    /// The verdict that the last judging has shown.
    enum class Verdict { None, Right, Wrong } shown_ = Verdict::None;
    bool hasOpened_ = false;
};

}  // namespace tavrune
