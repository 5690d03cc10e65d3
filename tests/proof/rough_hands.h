#pragma once

#include <functional>
#include <memory>
#include <string>

#include <QPointF>
#include <QTimer>

#include "app/program.h"
#include "controls/answer_box.h"
#include "numeric/draws.h"
#include "proof/choices.h"

class QMessageBox;

namespace tavrune::test {

/// A screen slower than the hands: what has been done is painted in one go, now and then.
class SlowScreen : public QObject {
public:
    SlowScreen();

    /// Counts a thing done; with every eighth everything is painted that has changed.
    void count();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int done_ = 0;
    bool isPainting_ = false;
};

/// Draws of another, and the last of them.
class NotedDraws final : public Draws {
public:
    explicit NotedDraws(Draws& draws) : draws_(draws) {}

    float Rnd() override { return last_ = draws_.Rnd(); }
    void Randomize() override { draws_.Randomize(); }
    [[nodiscard]] float last() const { return last_; }

private:
    Draws& draws_;
    float last_ = 1;
};

/// Somebody who does anything at all to one page of the running program: keys, pasted texts of every kind,
/// clicks anywhere, menu choices, other sizes, closing. What ends the program, or leads to another page, is
/// followed by a return to the page.
class RoughHands {
public:
    RoughHands(PageName home, Choices& choices, Draws& draws);
    ~RoughHands();

    /// Does one thing, and lets everything happen that comes of it.
    void act();

    /// What was done last, or is being done, for a report.
    [[nodiscard]] const std::string& lastAct() const { return lastAct_; }

    /// Is told of each thing just before it is done.
    void onAct(const std::function<void(const std::string&)>& listener) { listener_ = listener; }

    /// True while a megabyte stands in a box.
    [[nodiscard]] bool isHeavy() const { return heavyFor_ > 0; }

    /// What should not have come of it; empty if all is well.
    [[nodiscard]] const std::string& complaint() const { return complaint_; }

    /// Failures of the arithmetic that the page is known to keep, each answered like any message.
    [[nodiscard]] int knownFailures() const { return knownFailures_; }
    [[nodiscard]] int openings() const { return openings_; }

private:
    void begin();
    void openHome();
    void watchButtons();
    [[nodiscard]] bool isHome(const Page& page) const;

    void pressKey();
    void typeNumber();
    [[nodiscard]] QString spelledText();
    void paste();
    void composeText();
    void clickAnywhere();
    void clickControl();
    void drag();
    void turnWheel();
    void chooseInMenu();
    void changeWindow();
    void useAbout();
    void closePage();

    void click(QPointF onPage, Qt::MouseButton button);
    void emptyHeavyBox();
    void lookForMessages();
    void answer(QMessageBox* box);
    [[nodiscard]] bool isKnownFailure(const std::string& message) const;
    [[nodiscard]] AnswerBox* anyBox();
    [[nodiscard]] static QWidget* keyReceiver(Program& program);
    void tell(const std::string& act);
    static void leaveInnerLoop();

    PageName home_;
    Choices& choices_;
    NotedDraws draws_;
    std::unique_ptr<Program> program_;
    bool hasEnded_ = false;
    QPointer<Page> watched_;
    // The last button that was pressed on it, by whatever means; empty since its opening.
    std::string lastButton_;
    QPointer<AnswerBox> heavyBox_;
    int heavyFor_ = 0;
    std::string lastAct_ = "opened";
    std::function<void(const std::string&)> listener_;
    QTimer everyRound_;
    SlowScreen screen_;
    std::string complaint_;
    int knownFailures_ = 0;
    int openings_ = 0;
};

}  // namespace tavrune::test
