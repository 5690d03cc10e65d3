#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/label.h"
#include "numeric/draws.h"
#include "numeric/judgement.h"
#include "shell/failure.h"
#include "shell/page.h"

namespace tavrune {

void showAll(std::initializer_list<QWidget*> widgets);
void hideAll(std::initializer_list<QWidget*> widgets);
/// Shows or hides all of them.
void setShown(bool shown, std::initializer_list<QWidget*> widgets);

/// Where Enter leads from the last box of a chain: to "&OK" while that is shown; otherwise the focus stays,
/// or goes to "&Ny opgave".
enum class LastBox { OkOrStay, OkOrNewExercise };

/// The life cycle that all exercise forms share. It finds the controls that it needs by their names, which
/// are the same on every form:
///
/// - `newExercise`, `ok`, `giveAnswer`, `help`: the four standing buttons.
/// - `verdict`, or `right` and `wrong`: one label, whose caption and colour each judging sets; or two at one
///   place with fixed captions, of which judging shows one. If the design gives `wrong` a colour, it keeps
///   that until the first exercise.
/// - `helpPanel`, `closeHelp`: the help and its "Luk", if the form has one help for all its exercises.
///
/// What differs from form to form is in the hooks. The states:
///
///     Unopened --on screen--> Asking --judge--> Solved or Failed; --give the answer--> Given
///
/// "&Ny opgave" leads from every state to Asking. Panels open and close in any state.
class ExerciseForm : public Page {
    Q_OBJECT

public:
    ExerciseForm(PageName name, Draws& draws);

    /// Nothing: the first exercise says itself.
    void sayOnOpening() override {}

    /// Sets who is told when a failure of the arithmetic ends an action. Null, as at first: the failure is
    /// thrown on. Precondition: the handler outlives the form.
    void setFailureHandler(FailureHandler* handler) { failureHandler_ = handler; }

protected:
    /// Fills the design area from a designer file and binds the roles. Throws std::logic_error, with the
    /// names of form and control, if a control is missing.
    template <class Ui>
    void setUp(Ui& ui) {
        Page::setUp(ui);
        bindRoles();
    }
    void bindRoles();

    // For the constructor, once the roles are bound.
    /// Enter goes from each box to the next, and from the last one as `last` says.
    void enterChain(const std::vector<AnswerBox*>& boxes, LastBox last);

    /// Enter goes from each box to the next, and from the last one to the first of `candidates` that is
    /// shown.
    void enterChain(const std::vector<AnswerBox*>& boxes, const std::vector<QWidget*>& candidates);

    /// As `enterChain`, for boxes that can be hidden: from a box before a hidden one Enter goes as `last`
    /// says.
    void enterChainWhileShown(const std::vector<AnswerBox*>& boxes, LastBox last);

    /// Enter goes from `box` to the first of `candidates` that is shown, or nowhere. Replaces what an earlier
    /// call has set for the box.
    void enterGoes(AnswerBox* box, std::vector<QWidget*> candidates);

    /// Returns where Enter can go from a last box.
    [[nodiscard]] std::vector<QWidget*> after(LastBox last) const;

    /// Runs `action` at each click on `button`.
    void onClick(QAbstractButton* button, std::function<void()> action);
    template <class Form>
    void onClick(QAbstractButton* button, void (Form::*action)()) {
        onClick(button, [this, action] { (static_cast<Form*>(this)->*action)(); });
    }

    // The hooks.
    /// Called once, as soon as the form is on screen. The base gives "FORKERT" its final colour and asks the
    /// first exercise.
    virtual void opened();
    virtual void newExercise() = 0;
    virtual void judge() = 0;
    virtual void giveAnswer() = 0;
    virtual void help() = 0;
    /// "Luk" in the help panel. The base hides the panel.
    virtual void closeHelp();

    // Steps that the hooks are made of.
    /// Empties the boxes and takes their red away.
    static void clearBoxes(const std::vector<AnswerBox*>& boxes);
    /// Takes the red away.
    static void whiten(const std::vector<AnswerBox*>& boxes);
    /// Asking: "&OK" is shown, "&Giv svaret" and the verdict are not.
    void showAsking();
    /// Solved: "RIGTIGT" is shown, "&OK" and "&Giv svaret" are not. The focus goes to "&Ny opgave".
    void showSolved();
    /// Failed: "FORKERT", "&OK" and "&Giv svaret" are shown. The form says where the focus goes.
    void showFailed();
    /// Given: the verdict, "&OK" and "&Giv svaret" are hidden. The focus goes to "&Ny opgave".
    void showGiven();
    void hideVerdict();
    /// Shows "RIGTIGT". Kept (shell-forkert-behind): where "FORKERT" is a label of its own, it is not hidden.
    void showRight();
    void showWrong();
    /// Shows what is judged of `boxes`: the marks, then `showSolved`, or `showFailed` and the focus to
    /// `focusWhenWrong`, which stays where it is for null. Nothing is marked of a solved exercise. Returns
    /// whether it is solved. Precondition: the values were handed in in the order of the boxes.
    bool showJudgement(const Judgement& judgement, const std::vector<AnswerBox*>& boxes,
                       QWidget* focusWhenWrong);
    void giveFinalWrongColour();

    /// Shows a panel and gives the focus to its first button.
    static void openPanel(QWidget* panel, QWidget* firstButton);
    /// Null if the form has no help panel of that name.
    [[nodiscard]] QWidget* helpPanel() const { return helpPanel_; }

    [[nodiscard]] Draws& draws() { return draws_; }

    void showEvent(QShowEvent* event) override;

private:
    /// Runs an action of the form. A failure of the arithmetic ends the action and goes to the handler.
    void run(const std::function<void()>& action);
    [[nodiscard]] bool hasOneLabel() const { return right_ == wrong_; }
    /// Returns the control of a role. Throws std::logic_error if there is none.
    template <class Widget>
    [[nodiscard]] Widget* role(const char* name) const;
    void bindVerdict();
    /// Judges and announces the verdict, if there is one.
    void judgeAloud();
    static void announce(Label* verdict, const QString& words);
    /// Says the task, which makes all that is seen old news.
    void sayTask();
    /// What hides the control with the focus hands it on; a graph is none to go on with.
    void leaveGraphs();
    /// Graphs come after the fields on the way of Tab, whatever lies over what.
    void graphsAfterFields();
    /// Draws a new exercise and says its task.
    void newExerciseAloud();
    /// Returns the names of the visible boxes that are marked as wrong, in reading order.
    [[nodiscard]] QStringList wrongFields() const;

    Draws& draws_;
    FailureHandler* failureHandler_ = nullptr;
    struct {
        Button* newExercise = nullptr;
        Button* ok = nullptr;
        Button* giveAnswer = nullptr;
    } buttons_;
    /// The same label twice if the form has only one.
    Label* right_ = nullptr;
    Label* wrong_ = nullptr;
    QWidget* helpPanel_ = nullptr;
    /// The verdict that the last judging showed.
    enum class Verdict { None, Right, Wrong } shown_ = Verdict::None;
    bool hasOpened_ = false;
    /// From the first sight of the form to its first exercise.
    std::optional<Voice::Round> opening_;
};

}  // namespace tavrune
