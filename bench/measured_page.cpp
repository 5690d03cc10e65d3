#include "measured_page.h"

#include <algorithm>
#include <set>

#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QThread>

#include "controls/button.h"
#include "controls/option_button.h"

namespace tavrune::bench {
namespace {

void settle() {
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QGuiApplication::sync();
        QCoreApplication::processEvents();
    }
}

// The window manager makes a new window the active one last of all; what is measured next does not wait for
// that.
void settle(const QWidget& window) {
    const QDeadlineTimer deadline(1000);
    while (!window.isActiveWindow() && !deadline.hasExpired()) {
        QThread::msleep(1);
        QCoreApplication::processEvents();
    }
    settle();
}

}  // namespace

MeasuredPage::MeasuredPage(const test::FormFacts& facts) : facts_(facts) {}

bool MeasuredPage::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::Paint && receiver->isWidgetType() && draws_.drawn() != drawnBefore_) {
        isPainted_ = true;
    }
    return false;
}

double MeasuredPage::timed(const std::function<void()>& action) {
    isPainted_ = false;
    qApp->installEventFilter(this);
    const auto start = std::chrono::steady_clock::now();
    action();
    while (!isPainted_) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QGuiApplication::sync();
    const Milliseconds taken = std::chrono::steady_clock::now() - start;
    qApp->removeEventFilter(this);
    return taken.count();
}

bool MeasuredPage::dismissMessages() {
    bool any = false;
    while (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        any = true;
        box->close();
        settle();
    }
    return any;
}

void MeasuredPage::take(Samples& samples, const std::function<void()>& action) {
    const double taken = timed(action);
    settle();
    // An exercise that cannot be solved is not what is measured here. The help that is a message is.
    if (!dismissMessages() || helpsByMessage()) {
        samples.push_back(taken);
    }
}

void MeasuredPage::click(const std::string& button) const {
    program_->page()->findChild<QAbstractButton*>(QString::fromStdString(button))->click();
}

std::vector<AnswerBox*> MeasuredPage::boxes() const {
    std::vector<AnswerBox*> visible;
    for (AnswerBox* box : program_->page()->findChildren<AnswerBox*>()) {
        if (box->isVisible()) {
            visible.push_back(box);
        }
    }
    return visible;
}

void MeasuredPage::openByMenu(std::uint64_t seed) {
    program_->open(PageName::Form1);
    settle(*program_->page()->window());
    draws_.start(seed);
    // What is painted before the first exercise is drawn does not count.
    drawnBefore_ = draws_.drawn();
    take(opening, [this] { program_->page()->topicMenu().actionFor(facts_.page)->trigger(); });
    settle(*program_->page()->window());
    drawnBefore_ = kNone;
}

void MeasuredPage::judgeWrong() {
    if (!facts_.option.empty()) {
        click(facts_.option);
    }
    int typed = 3;
    for (AnswerBox* box : boxes()) {
        box->setContent(std::to_string(typed++) + ".25");
    }
    settle();
    take(judging, [this] { click("ok"); });
}

void MeasuredPage::judgeRight(std::uint64_t seed) {
    // The answer that is given for an exercise, typed into the same exercise.
    const auto drawAgain = [&] {
        draws_.start(seed);
        click("newExercise");
        if (!facts_.option.empty()) {
            click(facts_.option);
        }
        settle();
    };
    drawAgain();
    click("giveAnswer");
    std::vector<std::string> answers;
    for (const AnswerBox* box : boxes()) {
        answers.push_back(box->content());
    }
    drawAgain();
    const std::vector<AnswerBox*> fields = boxes();
    for (std::size_t i = 0; i < std::min(fields.size(), answers.size()); ++i) {
        fields[i]->setContent(answers[i]);
    }
    settle();
    take(judging, [this] { click("ok"); });
}

void MeasuredPage::showAllSteps() const {
    click("help");
    std::set<Button*> shown;
    for (bool goesOn = true; goesOn;) {
        goesOn = false;
        for (Button* button : program_->page()->findChildren<Button*>()) {
            const bool isStep = button->text().contains("Vis") && button->isVisible();
            // The last step of this form fails in some exercises.
            const bool mayFail = facts_.mayFail && button->objectName() == "showSum";
            if (isStep && !mayFail && shown.insert(button).second) {
                button->click();
                goesOn = true;
            }
        }
    }
}

void MeasuredPage::measure(std::uint64_t seed) {
    // One window stands at a time, as for a student.
    program_ = std::make_unique<Program>(draws_);
    openByMenu(seed);
    draws_.start(seed + 1);
    take(newExercise, [this] { click("newExercise"); });
    judgeWrong();
    take(helping, [this] { showAllSteps(); });
    judgeRight(seed + 2);
    program_.reset();
    settle();
}

}  // namespace tavrune::bench
