#include "proof/rough_hands.h"

#include <array>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QWheelEvent>
#include <QWindow>

#include "app/pages.h"
#include "conformance/facts.h"
#include "shell/failure.h"
#include "support/student.h"

namespace tavrune::test {
namespace {

struct KeyStroke {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    const char* text = nullptr;
};

const std::vector<KeyStroke>& keyStrokes() {
    static const std::vector<KeyStroke> strokes = [] {
        std::vector<KeyStroke> all;
        for (const Qt::Key key :
             {Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Tab,      Qt::Key_Backtab, Qt::Key_Up,
              Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Space,   Qt::Key_Home,
              Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete,  Qt::Key_Backspace,
              Qt::Key_Escape, Qt::Key_F1,     Qt::Key_F10,      Qt::Key_Alt,     Qt::Key_Menu,
              Qt::Key_Insert, Qt::Key_Clear}) {
            all.push_back({key});
        }
        for (const char* text : {"0", "1", "2", "5", "9", "-", "+", ".", ",", "e", "/", " ", "x", "æ", "€"}) {
            all.push_back(
                {static_cast<Qt::Key>(QString::fromUtf8(text)[0].toUpper().unicode()), Qt::NoModifier, text});
        }
        // The decimal key of the keypad, as the layouts send it.
        all.push_back({Qt::Key_Comma, Qt::KeypadModifier, ","});
        all.push_back({Qt::Key_Period, Qt::KeypadModifier, "."});
        for (const Qt::Key key : {Qt::Key_N, Qt::Key_O, Qt::Key_G, Qt::Key_H, Qt::Key_V, Qt::Key_L, Qt::Key_I,
                                  Qt::Key_T, Qt::Key_A}) {
            all.push_back({key, Qt::AltModifier});
        }
        for (const Qt::Key key :
             {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Equal, Qt::Key_0, Qt::Key_A, Qt::Key_C, Qt::Key_X,
              Qt::Key_V, Qt::Key_Z, Qt::Key_Y, Qt::Key_Tab, Qt::Key_Delete, Qt::Key_Left, Qt::Key_Right}) {
            all.push_back({key, Qt::ControlModifier});
        }
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Insert}) {
            all.push_back({key, Qt::ShiftModifier});
        }
        return all;
    }();
    return strokes;
}

constexpr int kMegabyte = 1'000'000;

/// Texts that no student types.
const std::vector<QString>& hostileTexts() {
    static const std::vector<QString> texts{
        "1e308",
        "-1e308",
        "1e-320",
        "1e999999999999",
        "NaN",
        "-inf",
        "0x10",
        "1,5",
        "- 1 . 5 e + 1",
        "--1",
        "\n\n1\n2\t3\r\n",
        QString(QChar(0)) + "1" + QChar(0) + "2",
        QString::fromUtf8("١٢٣ −5 ½ １２"),
        QString::fromUtf8("\u202e5.1-\u202c \u200b\ufeff7"),
        QString::fromUtf8("😀👩‍👩‍👧‍👦🇩🇰"),
        QString(QChar(0xd800)) + "1",
        QString(QChar(0xdc00)),
        "\x01\x02\x07\x08\x1b[31m\x7f",
        "<b>1</b>&lt;&amp;<img src=x>",
        "%s%n%1",
        QString(2000, '9'),
        "0." + QString(2000, '0') + "1",
        QString(2000, ' ') + "7",
        "1e" + QString(2000, '9'),
        QString(500, QChar(0x0301)),
        "",
    };
    return texts;
}

const QString& megabyteOf(int kind) {
    static const std::array texts{QString(kMegabyte, '9'), "1" + QString(kMegabyte, ' '),
                                  "." + QString(kMegabyte, '0') + "1"};
    return texts.at(static_cast<std::size_t>(kind) % texts.size());
}

std::string at(QPoint p) { return std::to_string(p.x()) + "," + std::to_string(p.y()); }

}  // namespace

SlowScreen::SlowScreen() { qApp->installEventFilter(this); }

void SlowScreen::count() {
    constexpr int kDoneAPicture = 8;
    if (++done_ % kDoneAPicture != 0) {
        return;
    }
    isPainting_ = true;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        QEvent request(QEvent::UpdateRequest);
        QApplication::sendEvent(window, &request);
    }
    isPainting_ = false;
}

bool SlowScreen::eventFilter(QObject* /*watched*/, QEvent* event) {
    return event->type() == QEvent::UpdateRequest && !isPainting_;
}

RoughHands::RoughHands(PageName home, Choices& choices, Draws& draws)
    : home_(home), choices_(choices), draws_(draws) {
    QObject::connect(&everyRound_, &QTimer::timeout, &everyRound_, &RoughHands::leaveInnerLoop);
    everyRound_.start(0);
    begin();
}

void RoughHands::tell(const std::string& act) {
    lastAct_ = act;
    if (listener_) {
        listener_(act);
    }
}

void RoughHands::leaveInnerLoop() {
    // The menu of a scroll bar waits for its own end, in a loop within the click.
    if (QThread::currentThread()->loopLevel() > 0) {
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }
}

RoughHands::~RoughHands() = default;

void RoughHands::begin() {
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    program_ = std::make_unique<Program>(draws_);
    hasEnded_ = false;
    QObject::connect(program_.get(), &Program::closeChosen, program_.get(), [this] { hasEnded_ = true; });
    openHome();
}

void RoughHands::openHome() {
    ++openings_;
    program_->open(home_);
    program_->window()->activateWindow();
    watchButtons();
    settle();
    lookForMessages();
}

void RoughHands::watchButtons() {
    lastButton_.clear();
    watched_ = program_->page();
    for (QAbstractButton* button : watched_->findChildren<QAbstractButton*>()) {
        QObject::connect(button, &QAbstractButton::pressed, button,
                         [this, button] { lastButton_ = button->objectName().toStdString(); });
    }
}

void RoughHands::act() {
    struct Way {
        int weight;
        void (RoughHands::*act)();
    };
    static constexpr std::array ways{
        Way{300, &RoughHands::pressKey},      Way{160, &RoughHands::typeNumber},
        Way{60, &RoughHands::paste},          Way{20, &RoughHands::composeText},
        Way{100, &RoughHands::clickAnywhere}, Way{300, &RoughHands::clickControl},
        Way{20, &RoughHands::drag},           Way{10, &RoughHands::turnWheel},
        Way{6, &RoughHands::chooseInMenu},    Way{20, &RoughHands::changeWindow},
        Way{4, &RoughHands::useAbout},        Way{2, &RoughHands::closePage},
    };
    static constexpr int all = [] {
        int sum = 0;
        for (const Way& way : ways) {
            sum += way.weight;
        }
        return sum;
    }();
    int chosen = choices_.below(all);
    for (const Way& way : ways) {
        chosen -= way.weight;
        if (chosen < 0) {
            (this->*way.act)();
            break;
        }
    }
    settle();
    lookForMessages();
    emptyHeavyBox();
    screen_.count();
    if (hasEnded_) {
        begin();
    } else if (program_->page() == nullptr || !isHome(*program_->page())) {
        openHome();
    } else if (program_->page() != watched_) {
        watchButtons();
    }
}

bool RoughHands::isHome(const Page& page) const {
    // The two pages on the use of the program are one button apart.
    return page.name() == home_ ||
           (isOwnEntry(page.name(), PageName::Form1) && isOwnEntry(home_, PageName::Form1));
}

QWidget* RoughHands::keyReceiver(Program& program) {
    for (QWidget* const receiver : {QApplication::activePopupWidget(), QApplication::focusWidget()}) {
        if (receiver != nullptr) {
            return receiver;
        }
    }
    return program.page();
}

void RoughHands::pressKey() {
    const KeyStroke& stroke = choices_.oneOf(keyStrokes());
    const bool isHeld = choices_.onceIn(20);
    tell("key " + QKeySequence(QKeyCombination(stroke.modifiers, stroke.key)).toString().toStdString());
    QWidget* const receiver = keyReceiver(*program_);
    if (isHeld) {
        QKeyEvent repeated(QEvent::KeyPress, stroke.key, stroke.modifiers, QString::fromUtf8(stroke.text),
                           true);
        QApplication::sendEvent(receiver, &repeated);
    } else if (stroke.text != nullptr) {
        QTest::sendKeyEvent(QTest::Click, receiver, stroke.key, QString::fromUtf8(stroke.text),
                            stroke.modifiers);
    } else {
        QTest::keyClick(receiver, stroke.key, stroke.modifiers);
    }
}

AnswerBox* RoughHands::anyBox() {
    const std::vector<AnswerBox*> boxes = inSight<AnswerBox>(*program_->page());
    return boxes.empty() ? nullptr : choices_.oneOf(boxes);
}

QString RoughHands::spelledText() {
    static const QString letters = QString::fromUtf8("0123456789.,-+eE /\tx(æ");
    QString text;
    for (int left = choices_.below(12); left > 0; --left) {
        text += choices_.oneOf(letters);
    }
    return text;
}

void RoughHands::typeNumber() {
    static const std::array numbers{"0", "1", "-2", "3,5", "-0.33", "7", "12", "1e3", "-9,31", ".25", "100"};
    const QString text = choices_.onceIn(2) ? spelledText() : choices_.oneOf(numbers);
    AnswerBox* const box = anyBox();
    if (box == nullptr) {
        return;
    }
    tell("type \"" + text.toStdString() + "\" into " + box->objectName().toStdString());
    box->setFocus();
    box->selectAll();
    for (const QChar& letter : text) {
        QTest::sendKeyEvent(QTest::Click, box, static_cast<Qt::Key>(letter.toUpper().unicode()), letter,
                            Qt::NoModifier);
    }
}

void RoughHands::paste() {
    // Rare: it takes as long as a thousand others.
    const bool isHeavy = choices_.onceIn(300);
    const QString& text = isHeavy ? megabyteOf(choices_.below(3)) : choices_.oneOf(hostileTexts());
    const bool replaces = choices_.onceIn(2);
    AnswerBox* const box = anyBox();
    if (box == nullptr) {
        return;
    }
    tell("paste \"" + text.left(20).toStdString() + "\" (" + std::to_string(text.size()) + ") into " +
         box->objectName().toStdString());
    QApplication::clipboard()->setText(text);
    box->setFocus();
    if (replaces || isHeavy) {
        box->selectAll();
    }
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    if (isHeavy) {
        heavyBox_ = box;
        heavyFor_ = 2;
        QApplication::clipboard()->clear();
    }
}

void RoughHands::emptyHeavyBox() {
    // The picture of a megabyte is laid out anew with each key: a few are enough.
    if (heavyFor_ > 0 && --heavyFor_ == 0 && !heavyBox_.isNull()) {
        heavyBox_->clear();
    }
}

void RoughHands::composeText() {
    static const std::array texts{"1,5", "²", "あ", ",", "-,5", ""};
    const QString text = QString::fromUtf8(choices_.oneOf(texts));
    const bool isCommitted = choices_.onceIn(2);
    AnswerBox* const box = anyBox();
    if (box == nullptr) {
        return;
    }
    tell("compose " + text.toStdString() + " in " + box->objectName().toStdString());
    QInputMethodEvent event(isCommitted ? "" : text, {});
    if (isCommitted) {
        event.setCommitString(text);
    }
    QApplication::sendEvent(box, &event);
}

void RoughHands::click(QPointF onPage, Qt::MouseButton button) {
    // By way of the window, so that what lies in front gets it: a panel, a menu, a message.
    QWindow* const window = program_->window()->windowHandle();
    if (window != nullptr && window->isVisible()) {
        QTest::mouseClick(window, button, Qt::NoModifier, onPage.toPoint());
    }
}

void RoughHands::clickAnywhere() {
    QWidget* const popup = QApplication::activePopupWidget();
    const bool hitsPopup = popup != nullptr && !choices_.onceIn(4);
    QWidget* const target = hitsPopup ? popup : program_->page();
    const QPoint where(choices_.below(qMax(1, target->width())), choices_.below(qMax(1, target->height())));
    const Qt::MouseButton button = choices_.onceIn(8) ? Qt::RightButton : Qt::LeftButton;
    const bool isDouble = choices_.onceIn(8);
    tell("click at " + at(where) + (hitsPopup ? " of a menu" : ""));
    if (hitsPopup) {
        QTest::mouseClick(popup, button, Qt::NoModifier, where);
        return;
    }
    click(where, button);
    if (isDouble && program_->page() != nullptr) {
        click(where, button);
    }
}

void RoughHands::clickControl() {
    const std::vector<QAbstractButton*> controls = inSight<QAbstractButton>(*program_->page());
    if (controls.empty()) {
        return;
    }
    QWidget* const control = choices_.oneOf(controls);
    tell("click on " + control->objectName().toStdString());
    click(control->mapTo(program_->page(), middleOf(*control)), Qt::LeftButton);
}

void RoughHands::drag() {
    QWindow* const window = program_->window()->windowHandle();
    const auto anywhere = [&] {
        return QPoint(choices_.below(qMax(1, window->width())), choices_.below(qMax(1, window->height())));
    };
    const QPoint from = anywhere();
    const QPoint to = anywhere();
    tell("drag from " + at(from) + " to " + at(to));
    if (!window->isVisible()) {
        return;
    }
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(window, (from + to) / 2);
    QTest::mouseMove(window, to);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, to);
}

void RoughHands::turnWheel() {
    Page* const page = program_->page();
    const QPoint where(choices_.below(page->width()), choices_.below(page->height()));
    const Qt::KeyboardModifiers modifiers = choices_.onceIn(2) ? Qt::ControlModifier : Qt::NoModifier;
    const int turn = choices_.onceIn(2) ? 120 : -120;
    tell("turn the wheel at " + at(where));
    QWidget* const target = page->childAt(where) != nullptr ? page->childAt(where) : page;
    QWheelEvent event(target->mapFrom(page, QPointF(where)), page->mapToGlobal(QPointF(where)), {}, {0, turn},
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

void RoughHands::chooseInMenu() {
    std::vector<QAction*> actions;
    for (QAction* action : program_->page()->menuBar()->findChildren<QAction*>()) {
        if (action->isEnabled() && action->menu() == nullptr && !action->isSeparator()) {
            actions.push_back(action);
        }
    }
    QAction* const action = choices_.oneOf(actions);
    tell("choose " + action->text().toStdString());
    action->trigger();
}

void RoughHands::changeWindow() {
    Window* const window = program_->window();
    switch (choices_.below(6)) {
        case 0:
            tell("maximise");
            window->showMaximized();
            break;
        case 1:
            tell("minimise and bring back");
            window->showMinimized();
            settle();
            window->showMaximized();
            window->activateWindow();
            break;
        case 2:
            tell("full screen");
            window->showFullScreen();
            break;
        default: {
            const QSize size(choices_.below(1600), choices_.below(1200));
            tell("resize to " + at({size.width(), size.height()}));
            window->showNormal();
            window->resize(size);
        }
    }
}

void RoughHands::useAbout() {
    tell("open the about box");
    program_->openAbout();
    settle();
    if (choices_.onceIn(2) && program_->about() != nullptr) {
        program_->about()->close();
    }
    if (program_->window() != nullptr) {
        program_->window()->activateWindow();
    }
}

void RoughHands::closePage() {
    tell("close the page");
    program_->window()->close();
}

void RoughHands::lookForMessages() {
    while (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        const bool isFailure = box->icon() == QMessageBox::Critical;
        if (!isFailure && !choices_.onceIn(3)) {
            // It stands for a while, and takes keys and clicks.
            return;
        }
        if (isFailure) {
            const std::string message = box->text().toStdString();
            if (isKnownFailure(message)) {
                ++knownFailures_;
            } else {
                complaint_ = "the program would have ended: " + message;
            }
            // It ends the program.
            hasEnded_ = true;
        }
        answer(box);
        settle();
    }
}

void RoughHands::answer(QMessageBox* box) { QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Return); }

bool RoughHands::isKnownFailure(const std::string& message) const {
    Page* const page = program_->page();
    const FormFacts* const facts = page == nullptr ? nullptr : factsOf(page->name());
    if (facts != nullptr && facts->except.dividesByADrawOfZero &&
        message == messageFor(ArithmeticFailure::Kind::DivisionByZero)) {
        return draws_.last() == 0;
    }
    if (facts == nullptr || !facts->mayFail()) {
        return false;
    }
    const Student seen(*page);
    // Of a page that has just come by the menu only the first exercise is made.
    const std::string lastButton = page == watched_ ? lastButton_ : "";
    // A sum that begins at the top of the graph and has no way to go: the task shows where it begins.
    if (message == messageFor(ArithmeticFailure::Kind::Overflow)) {
        return (lastButton.empty() || lastButton == "newExercise") &&
               seen.caption("function2Intercept") == "10";
    }
    // The last step of the help, where the table has a blank price.
    return lastButton == facts->except.failingStep &&
           message == messageFor(ArithmeticFailure::Kind::TypeMismatch) &&
           seen.box("price3").content() == " ";
}

}  // namespace tavrune::test
