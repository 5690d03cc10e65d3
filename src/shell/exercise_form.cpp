#include "shell/exercise_form.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

#include <QTimer>

#include "graph/graph_box.h"

namespace tavrune {
namespace {

constexpr std::string_view kRightCaption = "RIGTIGT";
constexpr std::string_view kWrongCaption = "FORKERT";
const QColor kRightOfTwo(0, 128, 0);

void styleVerdict(Label* label) {
    label->setAlignment(Qt::AlignCenter);
    label->setTextColour(kWhite);
    label->setVerdict(true);
    label->hide();
}

}  // namespace

void setShown(bool shown, std::initializer_list<QWidget*> widgets) {
    for (QWidget* widget : widgets) {
        widget->setVisible(shown);
    }
}

void showAll(std::initializer_list<QWidget*> widgets) { setShown(true, widgets); }

void hideAll(std::initializer_list<QWidget*> widgets) { setShown(false, widgets); }

ExerciseForm::ExerciseForm(PageName name, Draws& draws) : Page(name), draws_(draws) {}

template <class Widget>
Widget* ExerciseForm::role(const char* name) const {
    auto* const control = design()->findChild<Widget*>(name);
    if (control == nullptr) {
        throw std::logic_error(std::string(textOf(this->name())) + " has no control named " + name);
    }
    return control;
}

void ExerciseForm::bindRoles() {
    buttons_ = {role<Button>("newExercise"), role<Button>("ok"), role<Button>("giveAnswer")};
    buttons_.giveAnswer->hide();
    onClick(buttons_.newExercise, &ExerciseForm::newExerciseAloud);
    onClick(buttons_.ok, &ExerciseForm::judgeAloud);
    onClick(buttons_.giveAnswer, &ExerciseForm::giveAnswer);
    onClick(role<Button>("help"), &ExerciseForm::help);
    helpPanel_ = design()->findChild<QWidget*>("helpPanel");
    if (helpPanel_ != nullptr) {
        onClick(role<Button>("closeHelp"), &ExerciseForm::closeHelp);
    }
    bindVerdict();
    graphsAfterFields();
}

void ExerciseForm::leaveGraphs() {
    const QWidget* const first = focusWidget();
    while (qobject_cast<GraphBox*>(focusWidget()) != nullptr && focusNextPrevChild(true) &&
           focusWidget() != first) {
    }
}

void ExerciseForm::graphsAfterFields() {
    const auto isOnThePage = [this](const QWidget* control) {
        return helpPanel_ == nullptr || !helpPanel_->isAncestorOf(control);
    };
    QWidget* last = nullptr;
    for (AnswerBox* field : design()->findChildren<AnswerBox*>()) {
        last = isOnThePage(field) ? field : last;
    }
    for (GraphBox* graph : design()->findChildren<GraphBox*>()) {
        if (!graph->isChart()) {
            continue;
        }
        graph->setFocusPolicy(Qt::TabFocus);
        if (last != nullptr && isOnThePage(graph)) {
            QWidget::setTabOrder(last, graph);
            last = graph;
        }
    }
}

void ExerciseForm::bindVerdict() {
    if (auto* const verdict = design()->findChild<Label*>("verdict")) {
        right_ = wrong_ = verdict;
        styleVerdict(verdict);
        return;
    }
    right_ = role<Label>("right");
    wrong_ = role<Label>("wrong");
    styleVerdict(right_);
    styleVerdict(wrong_);
    right_->setCaption(kRightCaption);
    right_->setBackColour(kRightOfTwo);
    wrong_->setCaption(kWrongCaption);
    if (!wrong_->autoFillBackground()) {
        wrong_->setBackColour(kRed);
    }
}

void ExerciseForm::onClick(QAbstractButton* button, std::function<void()> action) {
    connect(button, &QAbstractButton::clicked, this, [this, done = std::move(action)] { run(done); });
}

void ExerciseForm::run(const std::function<void()>& action) {
    const Voice::Round round;
    const bool isHeard = Voice::instance().isHeard();
    if (isHeard) {
        hearing().takeFieldsForSaid();
    }
    try {
        action();
        leaveGraphs();
        if (isHeard) {
            Voice::instance().say(hearing().news().join(' '));
        }
    } catch (const ArithmeticFailure& failure) {
        if (failureHandler_ == nullptr) {
            throw;
        }
        failureHandler_->endAfter(failure.kind());
    }
}

void ExerciseForm::enterChain(const std::vector<AnswerBox*>& boxes, LastBox last) {
    enterChain(boxes, after(last));
}

void ExerciseForm::enterChain(const std::vector<AnswerBox*>& boxes, const std::vector<QWidget*>& candidates) {
    for (auto box = boxes.begin(); box != boxes.end(); ++box) {
        const auto next = box + 1;
        enterGoes(*box, next == boxes.end() ? candidates : std::vector<QWidget*>{*next});
    }
}

void ExerciseForm::enterChainWhileShown(const std::vector<AnswerBox*>& boxes, LastBox last) {
    for (auto box = boxes.begin(); box != boxes.end(); ++box) {
        std::vector<QWidget*> targets = after(last);
        if (box + 1 != boxes.end()) {
            targets.insert(targets.begin(), *(box + 1));
        }
        enterGoes(*box, std::move(targets));
    }
}

void ExerciseForm::enterGoes(AnswerBox* box, std::vector<QWidget*> candidates) {
    disconnect(box, &AnswerBox::enterPressed, this, nullptr);
    connect(box, &AnswerBox::enterPressed, this, [targets = std::move(candidates)] {
        for (QWidget* target : targets) {
            if (target->isVisible()) {
                focusOn(target);
                return;
            }
        }
    });
}

std::vector<QWidget*> ExerciseForm::after(LastBox last) const {
    if (last == LastBox::OkOrStay) {
        return {buttons_.ok};
    }
    return {buttons_.ok, buttons_.newExercise};
}

void ExerciseForm::opened() {
    giveFinalWrongColour();
    newExercise();
}

void ExerciseForm::clearBoxes(const std::vector<AnswerBox*>& boxes) {
    whiten(boxes);
    for (AnswerBox* box : boxes) {
        box->setContent("");
    }
}

void ExerciseForm::whiten(const std::vector<AnswerBox*>& boxes) {
    for (AnswerBox* box : boxes) {
        box->mark(false);
    }
}

void ExerciseForm::showAsking() {
    buttons_.ok->show();
    buttons_.giveAnswer->hide();
    hideVerdict();
}

void ExerciseForm::hideVerdict() { hideAll({right_, wrong_}); }

void ExerciseForm::showRight() {
    if (hasOneLabel()) {
        right_->setBackColour(kGreen);
        right_->setCaption(kRightCaption);
    }
    right_->show();
    shown_ = Verdict::Right;
}

void ExerciseForm::showWrong() {
    if (hasOneLabel()) {
        wrong_->setBackColour(kRed);
        wrong_->setCaption(kWrongCaption);
    }
    wrong_->show();
    shown_ = Verdict::Wrong;
}

void ExerciseForm::showSolved() {
    showRight();
    focusOn(buttons_.newExercise);
    hideAll({buttons_.ok, buttons_.giveAnswer});
}

void ExerciseForm::showFailed() {
    showWrong();
    showAll({buttons_.ok, buttons_.giveAnswer});
}

bool ExerciseForm::showJudgement(const Judgement& judgement, const std::vector<AnswerBox*>& boxes,
                                 QWidget* focusWhenWrong) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->mark(!judgement.isSolved && !judgement.isRight.at(i));
    }
    if (judgement.isSolved) {
        showSolved();
        return true;
    }
    showFailed();
    if (focusWhenWrong != nullptr) {
        focusOn(focusWhenWrong);
    }
    return false;
}

void ExerciseForm::showGiven() {
    hideVerdict();
    focusOn(buttons_.newExercise);
    hideAll({buttons_.ok, buttons_.giveAnswer});
}

void ExerciseForm::giveFinalWrongColour() {
    if (!hasOneLabel()) {
        wrong_->setBackColour(kRed);
    }
}

void ExerciseForm::judgeAloud() {
    shown_ = Verdict::None;
    judge();
    // Told when all is done: until then another verdict, and other marks, may come.
    if (shown_ == Verdict::Right) {
        announce(right_, right_->text());
    } else if (shown_ == Verdict::Wrong) {
        const QString fields = wrongFields().join("; ");
        announce(wrong_, fields.isEmpty() ? wrong_->text() : wrong_->text() + ": " + fields);
    }
}

void ExerciseForm::announce(Label* verdict, const QString& words) {
    verdict->setAccessibleName(words);
    Voice::instance().say(words + '.');
    Voice::instance().tellFocusAgain();
}

QStringList ExerciseForm::wrongFields() const {
    QList<AnswerBox*> boxes = design()->findChildren<AnswerBox*>();
    boxes.removeIf([](const AnswerBox* box) { return !box->isVisible() || !box->isMarked(); });
    const auto place = [this](const AnswerBox* box) {
        const QPoint corner = box->mapTo(design(), QPoint());
        return std::tuple(corner.y(), corner.x());
    };
    std::ranges::sort(boxes, {}, place);
    QStringList names;
    for (const AnswerBox* box : boxes) {
        names << box->accessibleName();
    }
    return names;
}

void ExerciseForm::sayTask() {
    Page::sayOnOpening();
    Voice::instance().tellFocusAgain();
    if (Voice::instance().isHeard()) {
        hearing().takeForSaid();
    }
}

void ExerciseForm::newExerciseAloud() {
    newExercise();
    sayTask();
}

void ExerciseForm::closeHelp() { helpPanel_->hide(); }

void ExerciseForm::openPanel(QWidget* panel, QWidget* firstButton) {
    panel->show();
    focusOn(firstButton);
}

void ExerciseForm::showEvent(QShowEvent* /*event*/) {
    if (hasOpened_) {
        return;
    }
    hasOpened_ = true;
    buttons_.newExercise->show();
    // The first exercise sets the focus, and that needs a form on screen.
    opening_.emplace();
    QTimer::singleShot(0, this, [this] {
        run([this] {
            opened();
            sayTask();
        });
        opening_.reset();
    });
}

}  // namespace tavrune
