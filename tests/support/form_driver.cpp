#include "support/form_driver.h"

#include <stdexcept>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace tavrune::test {

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

FormDriver::FormDriver(PageName name, Draws& draws) : page_(makePage(name, draws)) { show(); }

FormDriver FormDriver::unshown(PageName name, Draws& draws) {
    FormDriver driver;
    driver.page_ = makePage(name, draws);
    return driver;
}

FormDriver::~FormDriver() = default;

void FormDriver::show() {
    page_->show();
    page_->activateWindow();
    settle();
}

std::string FormDriver::focus() const {
    const QWidget* const focused = page_->focusWidget();
    return focused == nullptr ? "" : focused->objectName().toStdString();
}

std::set<std::string> FormDriver::redBoxes() const {
    std::set<std::string> red;
    for (const AnswerBox* box : page_->findChildren<AnswerBox*>()) {
        const std::string name = box->objectName().toStdString();
        if (box->isMarked()) {
            red.insert(name);
        }
        if (box->backColour() != (box->isMarked() ? kRed : kWhite)) {
            throw std::logic_error(name + " has not the colour of its mark");
        }
    }
    return red;
}

void FormDriver::fill(const std::map<std::string, std::string>& texts) const {
    for (const auto& [box, text] : texts) {
        this->box(box).setContent(text);
    }
}

void FormDriver::type(const std::string& box, const std::string& keys) const {
    AnswerBox& field = this->box(box);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromStdString(keys));
}

void FormDriver::press(const std::string& control, Qt::Key key) const {
    QTest::keyClick(&find(control), key);
    settle();
}

void FormDriver::click(const std::string& control) const {
    QWidget& widget = find(control);
    // An option is clicked on its mark: the far end of its text may be bare ground.
    const bool isOption = qobject_cast<OptionButton*>(&widget) != nullptr;
    const QPoint where = isOption ? QPoint(8, widget.height() / 2) : widget.rect().center();
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, where);
    settle();
}

std::string FormDriver::answerMessage() const {
    auto* const box = page_->findChild<QMessageBox*>();
    if (box == nullptr) {
        return "";
    }
    std::string text = box->text().toStdString();
    QTest::keyClick(box->button(QMessageBox::Ok), Qt::Key_Return);
    settle();
    return text;
}

void FormDriver::missing(const std::string& name) { throw std::invalid_argument("no control named " + name); }

}  // namespace tavrune::test
