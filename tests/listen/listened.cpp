// The program with exercises that are the same every time, for one who listens to it. It notes what is due to
// be heard: what stands on the screen, found from the widgets themselves and not from what speaks for them.
//
//     tavrune_listened                        runs; the environment names the SEED and where to note what is
//     seen tavrune_listened answers PAGE NUMBER    prints what is seen once the answer of a page's exercise
//     is given
//
// What is seen is a line for each thing, of words parted by tabs: see `Sight`.

#include <algorithm>
#include <iostream>
#include <string>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTimer>

#include "app/application.h"
#include "app/program.h"
#include "graph/graph_box.h"
#include "numeric/draws.h"
#include "support/form_driver.h"

namespace tavrune::test {
namespace {

QString oneLine(QString text) { return text.remove('&').simplified(); }

/// Returns whether `front` is painted over `behind`, which it does not contain.
bool isInFront(const QWidget& front, const QWidget& behind) {
    const QWidget* branch = &front;
    while (branch->parentWidget() != nullptr && !branch->parentWidget()->isAncestorOf(&behind)) {
        branch = branch->parentWidget();
    }
    if (branch->parentWidget() == nullptr) {
        return false;
    }
    for (const QObject* sibling : branch->parentWidget()->children()) {
        const auto* const widget = qobject_cast<const QWidget*>(sibling);
        if (widget == branch) {
            return false;
        }
        if (widget != nullptr && (widget == &behind || widget->isAncestorOf(&behind))) {
            return true;
        }
    }
    return false;
}

/// All that is on a window. A line begins with what it tells of:
///
///     title, message     the window's, a message box's
///     focus              what it has: the name and what it is called there
///     box                name, what it is called, what stands in it, whether it is marked as wrong
///     option             name, caption, whether it is chosen, or shown to be right
///     button             name, caption, unless it lies under a blank
///     verdict            as it is shown
///     task, panel, graph a label on the page, on a panel, on a graph: name and text
///     covered            a label that lies under a blank one
class Sight {
public:
    explicit Sight(const QWidget& window) : window_(&window) {
        tell({"title", window.windowTitle()});
        if (const auto* const message = qobject_cast<const QMessageBox*>(&window)) {
            tell({"message", message->text()});
        }
        tellFocus();
        const QList<QWidget*> widgets = window.findChildren<QWidget*>();
        std::copy_if(widgets.begin(), widgets.end(), std::back_inserter(blanks_), isBlank);
        for (const QWidget* widget : widgets) {
            if (widget->isVisible()) {
                tellOf(*widget);
            }
        }
    }

    [[nodiscard]] QByteArray text() const { return lines_.join('\n').toUtf8() + '\n'; }

private:
    /// A cover: a label without a text, or a panel within another one, for those who have not asked for a
    /// step.
    static bool isBlank(const QWidget* widget) {
        const auto* const label = qobject_cast<const Label*>(widget);
        const bool isBlankLabel =
            label != nullptr && label->autoFillBackground() && label->text().trimmed().isEmpty();
        const bool isInnerPanel =
            qobject_cast<const Panel*>(widget) != nullptr && isPanel(*widget->parentWidget());
        return widget->isVisible() && (isBlankLabel || isInnerPanel);
    }

    static bool isPanel(const QWidget& widget) {
        // Some help panels are drawn on.
        return qobject_cast<const Panel*>(&widget) != nullptr ||
               (qobject_cast<const GraphBox*>(&widget) != nullptr &&
                !widget.findChildren<QAbstractButton*>().isEmpty());
    }

    void tell(QStringList words) {
        for (QString& word : words) {
            word = oneLine(word);
        }
        lines_ << words.join('\t');
    }

    void tellFocus() {
        const QWidget* const focused = QApplication::focusWidget();
        if (focused == nullptr || !window_->isAncestorOf(focused)) {
            return;
        }
        const auto* const button = qobject_cast<const QAbstractButton*>(focused);
        const QString name = focused->accessibleName();
        tell({"focus", focused->objectName(), button != nullptr && name.isEmpty() ? button->text() : name});
    }

    void tellOf(const QWidget& widget) {
        const QString name = widget.objectName();
        if (const auto* const box = qobject_cast<const AnswerBox*>(&widget)) {
            tell({"box", name, box->accessibleName(), box->text(), box->isMarked() ? "wrong" : ""});
        } else if (const auto* const option = qobject_cast<const OptionButton*>(&widget)) {
            tell({"option", name, option->text(),
                  option->isChosen()               ? "chosen"
                  : option->backColour() == kGreen ? "right"
                                                   : ""});
        } else if (const auto* const button = qobject_cast<const Button*>(&widget)) {
            if (!isUnderABlank(*button)) {
                tell({"button", name, button->text()});
            }
        } else if (const auto* const label = qobject_cast<const Label*>(&widget);
                   label != nullptr && !label->text().trimmed().isEmpty()) {
            tell({label->isVerdict()      ? "verdict"
                  : isUnderABlank(*label) ? "covered"
                                          : groundOf(*label),
                  name, label->text()});
        }
    }

    [[nodiscard]] bool isUnderABlank(const QWidget& widget) const {
        const QPoint middle = widget.mapTo(window_, widget.rect().center());
        return std::any_of(blanks_.begin(), blanks_.end(), [&](const QWidget* blank) {
            return !blank->isAncestorOf(&widget) && blank->rect().contains(blank->mapFrom(window_, middle)) &&
                   isInFront(*blank, widget);
        });
    }

    [[nodiscard]] static QString groundOf(const Label& label) {
        for (const QWidget* around = label.parentWidget(); around != nullptr;
             around = around->parentWidget()) {
            if (isPanel(*around)) {
                return "panel";
            }
            if (qobject_cast<const GraphBox*>(around) != nullptr) {
                return "graph";
            }
        }
        return "task";
    }

    const QWidget* window_;
    std::vector<const QWidget*> blanks_;
    QStringList lines_;
};

bool write(const QString& file, const QByteArray& text) {
    // At once or not at all: it is read at any time.
    QSaveFile saved(file);
    return saved.open(QIODevice::WriteOnly) && saved.write(text) == text.size() && saved.commit();
}

/// Notes what is seen whenever it has changed, in FILE, and in FILE.beat how many looks there have been, and
/// at which of them it changed.
void look(const QString& file) {
    static int looks = 0;
    static int lastChange = 0;
    static QByteArray last;
    ++looks;
    const QWidget* const window = QApplication::activeWindow();
    const QByteArray text = window == nullptr ? QByteArray() : Sight(*window).text();
    if (text != last) {
        last = text;
        lastChange = looks;
        write(file, text);
    }
    write(file + ".beat", QByteArray::number(looks) + ' ' + QByteArray::number(lastChange) + '\n');
}

std::uint64_t seed() {
    bool isNumber = false;
    const int set = qEnvironmentVariableIntValue("TAVRUNE_LISTEN_SEED", &isNumber);
    return isNumber ? static_cast<std::uint64_t>(set) : 1;
}

int listen() {
    SeededDraws draws(seed());
    const QString file = qEnvironmentVariable("TAVRUNE_LISTEN_FILE");
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [file] { look(file); });
    timer.start(25);
    return Program(draws).run();
}

/// The exercises are those that a student gets who opens the page first of all: the seed alone decides.
int printAnswers(const std::string& page, int number) {
    const std::vector<PageName> pages = allPages();
    const auto name =
        std::find_if(pages.begin(), pages.end(), [&](PageName each) { return textOf(each) == page; });
    if (name == pages.end()) {
        std::cerr << "There is no page " << page << ".\n";
        return 1;
    }
    SeededDraws draws(seed());
    const FormDriver driver(*name, draws);
    for (int i = 1; i < number; ++i) {
        driver.click("newExercise");
    }
    driver.button("giveAnswer").click();
    settle();
    std::cout << Sight(*driver.page().window()).text().toStdString();
    return 0;
}

}  // namespace
}  // namespace tavrune::test

int main(int argc, char** argv) {
    int named = std::min(argc, 1);
    const tavrune::Application application(named, argv);
    if (argc == 4 && std::string(argv[1]) == "answers") {
        return tavrune::test::printAnswers(argv[2], std::stoi(argv[3]));
    }
    return tavrune::test::listen();
}
