#include "shell/exercise_form.h"

#include <algorithm>
#include <tuple>

#include <QAccessible>
#include <QCoreApplication>
#include <QTimer>

namespace tavrune {
namespace {

constexpr std::string_view kRightCaption = "RIGTIGT";
constexpr std::string_view kWrongCaption = "FORKERT";
const QColor kRightOfTwo(0, 128, 0);
const QColor kWrongAtStart(192, 0, 0);

void styleVerdict(Label* label) {
    label->setAlignment(Qt::AlignCenter);
    label->setTextColour(kWhite);
    label->setVerdict(true);
    label->hide();
}

/// Runs an action of a form. A failure ends it; it is thrown on only where no application object takes it.
void run(const std::function<void()>& action) {
    try {
        action();
    } catch (const ArithmeticFailure& failure) {
        auto* const handler = dynamic_cast<FailureHandler*>(QCoreApplication::instance());
        if (handler == nullptr) {
            throw;
        }
        handler->endAfter(failure.kind());
    }
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

void ExerciseForm::buttons(const Buttons& roles) {
    buttons_ = roles;
    roles.giveAnswer->hide();
    onClick(roles.newExercise, &ExerciseForm::newExercise);
    onClick(roles.ok, &ExerciseForm::judgeAloud);
    onClick(roles.giveAnswer, &ExerciseForm::giveAnswer);
    onClick(roles.help, &ExerciseForm::help);
}

void ExerciseForm::onClick(QAbstractButton* button, std::function<void()> action) {
    connect(button, &QAbstractButton::clicked, this, [done = std::move(action)] { run(done); });
}

void ExerciseForm::verdict(const OneLabel& label) {
    oneLabel_ = label.label;
    right_ = wrong_ = label.label;
    styleVerdict(label.label);
}

void ExerciseForm::verdict(const TwoLabels& labels) {
    right_ = labels.right;
    wrong_ = labels.wrong;
    styleVerdict(right_);
    styleVerdict(wrong_);
    right_->setCaption(kRightCaption);
    right_->setBackColour(kRightOfTwo);
    wrong_->setCaption(kWrongCaption);
    wrong_->setBackColour(labels.darkUntilFirstTick ? kWrongAtStart : kRed);
}

void ExerciseForm::enterChain(std::initializer_list<AnswerBox*> boxes, LastBox last) {
    for (const auto* box = boxes.begin(); box != boxes.end(); ++box) {
        const auto* const next = box + 1;
        enterGoes(*box, next == boxes.end() ? after(last) : std::vector<QWidget*>{*next});
    }
}

void ExerciseForm::enterChainWhileShown(std::initializer_list<AnswerBox*> boxes, LastBox last) {
    for (const auto* box = boxes.begin(); box != boxes.end(); ++box) {
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
    Q_ASSERT(buttons_.ok != nullptr);
    if (last == LastBox::OkOrStay) {
        return {buttons_.ok};
    }
    return {buttons_.ok, buttons_.newExercise};
}

void ExerciseForm::firstTick() {
    giveFinalWrongColour();
    newExercise();
}

void ExerciseForm::clearBoxes(std::initializer_list<AnswerBox*> boxes) {
    whiten(boxes);
    for (AnswerBox* box : boxes) {
        box->setContent("");
    }
}

void ExerciseForm::whiten(std::initializer_list<AnswerBox*> boxes) {
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
    if (oneLabel_ != nullptr) {
        oneLabel_->setBackColour(kGreen);
        oneLabel_->setCaption(kRightCaption);
    }
    right_->show();
    shown_ = Verdict::Right;
}

void ExerciseForm::showWrong() {
    if (oneLabel_ != nullptr) {
        oneLabel_->setBackColour(kRed);
        oneLabel_->setCaption(kWrongCaption);
    }
    wrong_->show();
    shown_ = Verdict::Wrong;
}

void ExerciseForm::solved() {
    showRight();
    focusOn(buttons_.newExercise);
    hideAll({buttons_.ok, buttons_.giveAnswer});
}

void ExerciseForm::failed() {
    showWrong();
    showAll({buttons_.ok, buttons_.giveAnswer});
}

void ExerciseForm::given() {
    hideVerdict();
    focusOn(buttons_.newExercise);
    hideAll({buttons_.ok, buttons_.giveAnswer});
}

void ExerciseForm::giveFinalWrongColour() {
    if (oneLabel_ == nullptr) {
        wrong_->setBackColour(kRed);
    }
}

void ExerciseForm::judgeAloud() {
    shown_ = Verdict::None;
    judge();
    // Fields turn red after the verdict has come, so it is told when all is done.
    if (shown_ == Verdict::Right) {
        announce(right_, right_->text());
    } else if (shown_ == Verdict::Wrong) {
        const QString fields = wrongFields().join(", ");
        announce(wrong_, fields.isEmpty() ? wrong_->text() : wrong_->text() + ": " + fields);
    }
}

void ExerciseForm::announce(Label* verdict, const QString& words) {
    verdict->setAccessibleName(words);
    QAccessibleEvent event(verdict, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    emit announced(words);
}

QStringList ExerciseForm::wrongFields() const {
    QList<AnswerBox*> boxes = design()->findChildren<AnswerBox*>();
    boxes.removeIf([](const AnswerBox* box) { return !box->isVisible() || box->backColour() != kRed; });
    const auto place = [this](const AnswerBox* box) {
        const QPoint corner = box->mapTo(design(), QPoint(0, 0));
        return std::tuple(corner.y(), corner.x());
    };
    std::sort(boxes.begin(), boxes.end(),
              [&place](const AnswerBox* one, const AnswerBox* other) { return place(one) < place(other); });
    QStringList names;
    for (const AnswerBox* box : boxes) {
        names << box->accessibleName();
    }
    return names;
}

void ExerciseForm::openPanel(QWidget* panel, QWidget* firstVis) {
    panel->show();
    focusOn(firstVis);
}

void ExerciseForm::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    if (hasTicked_) {
        return;
    }
    hasTicked_ = true;
    loadStep();
    // The first exercise sets the focus, and that needs a form on screen.
    QTimer::singleShot(0, this, [this] { run([this] { firstTick(); }); });
}

}  // namespace tavrune
