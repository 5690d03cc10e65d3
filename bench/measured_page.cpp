#include "measured_page.h"

#include <cstdio>
#include <cstdlib>
#include <numeric>

#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QThread>
#include <QTimer>

namespace tavrune::bench {
namespace {

/// In milliseconds: whatever takes longer will never be painted.
constexpr int kPatience = 5000;

void settle() {
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QGuiApplication::sync();
        QCoreApplication::processEvents();
    }
}

/// For what the window manager does, in its own time.
void wait(const std::function<bool()>& isDone) {
    const QDeadlineTimer deadline(1000);
    while (!isDone() && !deadline.hasExpired()) {
        QThread::msleep(1);
        QCoreApplication::processEvents();
    }
    settle();
}

// The window manager makes a new window the active one last of all; what is measured next does not wait for
// that.
void settle(const QWidget& window) {
    wait([&window] { return window.isActiveWindow(); });
}

}  // namespace

MeasuredPage::MeasuredPage(const test::FormFacts& facts, Zoom zoom) : facts_(facts), zoom_(zoom) {}

bool MeasuredPage::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::Paint && receiver->isWidgetType() && draws_.drawn() != drawnBefore_) {
        isPainted_ = true;
    }
    return false;
}

double MeasuredPage::timed(const std::function<void()>& action) {
    isPainted_ = false;
    qApp->installEventFilter(this);
    QTimer patience;
    patience.callOnTimeout([this] {
        std::fprintf(stderr, "Nothing is painted on %s.\n", std::string(textOf(facts_.page)).c_str());
        std::exit(EXIT_FAILURE);
    });
    patience.start(kPatience);
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
    if (!dismissMessages() || facts_.except.helpsByMessage) {
        samples.push_back(taken);
    }
}

void MeasuredPage::press(const std::string& button) const { student().find<QAbstractButton>(button).click(); }

void MeasuredPage::openByMenu(std::uint64_t seed) {
    program_->open(PageName::Form1);
    settle(*program_->page()->window());
    if (zoom_ != Zoom()) {
        emit program_->page()->zoomed(zoom_);
        settle();
    }
    draws_.start(seed);
    // What is painted before the first exercise is drawn does not count.
    drawnBefore_ = draws_.drawn();
    take(opening, [this] { program_->page()->topicMenu().actionFor(facts_.page)->trigger(); });
    settle(*program_->page()->window());
    drawnBefore_ = kNone;
}

void MeasuredPage::judgeWrong() {
    if (!facts_.option.empty()) {
        press(facts_.option);
    }
    int typed = 3;
    for (AnswerBox* box : student().boxes()) {
        box->setContent(std::to_string(typed++) + ".25");
    }
    settle();
    take(judging, [this] { press("ok"); });
}

void MeasuredPage::judgeRight(std::uint64_t seed) {
    // The answer that is given for an exercise, typed into the same exercise.
    const auto drawAgain = [&] {
        draws_.start(seed);
        press("newExercise");
        if (!facts_.option.empty()) {
            press(facts_.option);
        }
        settle();
    };
    drawAgain();
    press("giveAnswer");
    const test::Answer answer = student().answerShown();
    drawAgain();
    student().fill(answer.boxes);
    settle();
    take(judging, [this] { press("ok"); });
}

void MeasuredPage::measure(std::uint64_t seed) {
    // One window stands at a time, as for a student.
    program_ = std::make_unique<Program>(draws_);
    openByMenu(seed);
    draws_.start(seed + 1);
    take(newExercise, [this] { press("newExercise"); });
    judgeWrong();
    take(helping, [this] {
        press("help");
        student().showAllSteps(facts_.except.failingStep);
    });
    judgeRight(seed + 2);
    program_.reset();
    settle();
}

void MeasuredPage::size() {
    for (const Zoom zoom : {Zoom(), Zoom(200), Zoom(300), Zoom::fitted()}) {
        take(sizing, [&] { emit program_->page()->zoomed(zoom); });
    }
}

void MeasuredPage::drag() {
    constexpr int kSteps = 8;
    constexpr QSize kStep(9, 7);
    QWidget& window = *program_->window();
    // Of any size at which the page has to follow.
    window.resize(window.size() * 0.8);
    settle();
    Samples frames;
    for (int step = 0; step < 2 * kSteps; ++step) {
        const QSize next = step < kSteps ? window.size() - kStep : window.size() + kStep;
        take(frames, [&] { window.resize(next); });
    }
    // One frame may come late if the next comes early.
    dragging.push_back(std::accumulate(frames.begin(), frames.end(), 0.0) /
                       static_cast<double>(frames.size()));
    window.resize(window.size() / 0.8);
    settle();
}

void MeasuredPage::measureSizes(std::uint64_t seed) {
    program_ = std::make_unique<Program>(draws_);
    openByMenu(seed);
    // As large as the screen, but not maximised: such a window can't be dragged.
    QWidget& window = *program_->window();
    const QSize largest = window.size();
    window.showNormal();
    wait([&] { return window.size() != largest; });
    window.resize(largest);
    settle(window);
    size();
    drag();
    press("help");
    static_cast<void>(dismissMessages());
    student().showAllSteps(facts_.except.failingStep);
    settle();
    size();
    drag();
    program_.reset();
    settle();
}

}  // namespace tavrune::bench
