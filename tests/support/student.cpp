#include "support/student.h"

#include <algorithm>
#include <stdexcept>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace tavrune::test {

std::string nameOf(const QWidget& widget) { return widget.objectName().toStdString(); }

std::string wrongText(int place) { return std::to_string(987654 + 1013 * place) + ".25"; }

bool isOfHelpTable(const AnswerBox& box) {
    return box.accessibleName().endsWith(QStringLiteral("hjælpeskemaet"));
}

QPoint middleOf(const QWidget& control) {
    const bool isOption = qobject_cast<const OptionButton*>(&control) != nullptr;
    return isOption ? QPoint(8, control.height() / 2) : control.rect().center();
}

void settle() {
    // Deferred deletions and timers of no delay are due in the first rounds; the second sees what they
    // caused.
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

ProgramEnd readFailure() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
        return {};
    }
    ProgramEnd end{box->text().toStdString()};
    QTimer::singleShot(0, box, [box] { QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Return); });
    end.status = QCoreApplication::exec();
    settle();
    return end;
}

std::string Student::focus() const {
    const QWidget* const focused = at_->focusWidget();
    return focused == nullptr ? "" : nameOf(*focused);
}

std::vector<Button*> Student::buttons() const {
    std::vector<Button*> buttons = inSight<Button>(*at_);
    std::erase_if(buttons, [](const Button* button) { return !button->isEnabled(); });
    return buttons;
}

std::set<std::string> Student::redBoxes() const {
    std::set<std::string> red;
    for (const AnswerBox* box : at_->findChildren<AnswerBox*>()) {
        const std::string name = nameOf(*box);
        if (box->isMarked()) {
            red.insert(name);
        }
        if (box->backColour() != (box->isMarked() ? kRed : kWhite)) {
            throw std::logic_error(name + " has not the colour of its mark");
        }
    }
    return red;
}

std::string Student::verdict() const {
    // A right verdict lies over a wrong one that still stands.
    for (const char* name : {"verdict", "right", "wrong"}) {
        const auto* const label = at_->findChild<Label*>(name);
        if (label != nullptr && label->isShown()) {
            return label->caption();
        }
    }
    return "";
}

std::set<std::string> Student::helpPanels() const {
    std::set<std::string> open;
    for (const QWidget* panel : at_->findChildren<QWidget*>()) {
        if (panel->objectName().endsWith("helpPanel", Qt::CaseInsensitive) && !panel->isHidden()) {
            open.insert(nameOf(*panel));
        }
    }
    return open;
}

Button* Student::closeButton() const {
    const std::vector<Button*> all = buttons();
    const auto close = std::find_if(all.begin(), all.end(), [](const Button* button) {
        return button->caption() == "&Luk" || button->caption() == "Luk";
    });
    return close == all.end() ? nullptr : *close;
}

Button* Student::nextStep(const std::set<const Button*>& pressed) const {
    std::vector<Button*> steps = buttons();
    std::erase_if(steps, [&pressed](const Button* button) {
        return button->caption() != "Vis" || pressed.contains(button);
    });
    // Where the last step has led is the way that is meant.
    const auto focused = std::find(steps.begin(), steps.end(), at_->focusWidget());
    return steps.empty() ? nullptr : focused != steps.end() ? *focused : steps.front();
}

Answer Student::answerShown() const {
    Answer answer;
    for (const OptionButton* option : at_->findChildren<OptionButton*>()) {
        if (option->backColour() == kGreen || (option->isChosen() && answer.option.empty())) {
            answer.option = nameOf(*option);
        }
    }
    for (const AnswerBox* box : boxes()) {
        answer.boxes[nameOf(*box)] = box->content();
    }
    return answer;
}

void Student::fill(const std::map<std::string, std::string>& texts) const {
    for (const auto& [box, text] : texts) {
        this->box(box).setContent(text);
    }
}

void Student::fillAll(const std::string& text) const {
    for (AnswerBox* box : boxes()) {
        box->setContent(text);
    }
}

void Student::type(const std::string& box, const std::string& keys) const {
    AnswerBox& field = this->box(box);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromStdString(keys));
}

void Student::press(const std::string& control, Qt::Key key) const {
    QTest::keyClick(&find(control), key);
    settle();
}

void Student::clickOne(const std::string& control) const {
    QWidget& widget = find(control);
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, middleOf(widget));
    settle();
}

void Student::answerWrongly(const std::string& option) const {
    if (!option.empty()) {
        click(option);
    }
    int place = 0;
    for (const AnswerBox* box : boxes()) {
        type(nameOf(*box), wrongText(place++));
    }
    click("ok");
}

Answer Student::giveUp(const std::string& option) const {
    answerWrongly(option);
    click("giveAnswer");
    return answerShown();
}

void Student::write(const Answer& answer) const {
    if (!answer.option.empty()) {
        click(answer.option);
    }
    for (const AnswerBox* box : boxes()) {
        const auto shown = answer.boxes.find(nameOf(*box));
        if (shown != answer.boxes.end() && !isOfHelpTable(*box)) {
            type(shown->first, shown->second);
        }
    }
}

void Student::showAllSteps(const std::string& butFor) const {
    std::set<const Button*> pressed;
    if (!butFor.empty()) {
        pressed.insert(&button(butFor));
    }
    while (Button* const step = nextStep(pressed)) {
        pressed.insert(step);
        step->click();
    }
}

std::string Student::answerMessage() const {
    auto* const box = at_->findChild<QMessageBox*>();
    if (box == nullptr) {
        return "";
    }
    if (QApplication::activeModalWidget() != box) {
        throw std::logic_error("what lies behind the message can be used");
    }
    std::string text = box->text().toStdString();
    QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Return);
    settle();
    return text;
}

void Student::missing(const std::string& name) { throw std::invalid_argument("no control named " + name); }

}  // namespace tavrune::test
