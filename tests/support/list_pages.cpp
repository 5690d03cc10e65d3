// Prints what scripts need to know of the pages, a line each, in words parted by blanks:
//
//     KIND FILE PLACE SUBPLACE BOXES STEPS NAME TITLE
//
// KIND is "page", or "form" where there are exercises; the last line, "exit", is the way out of the menu.
// FILE is what the page's files are called. PLACE counts the entries of the topic menu before its own, or
// before the subject in whose submenu it is the SUBPLACEth; that is 0 where there is none, and both are "-"
// if no entry leads to the page. BOXES are those for an answer, STEPS the "Vis" of the help, in all. NAME is
// the page's own, TITLE its window's.

#include <algorithm>
#include <cctype>
#include <iostream>
#include <string>

#include <QApplication>

#include "app/pages.h"
#include "controls/answer_box.h"
#include "controls/button.h"
#include "numeric/draws.h"

namespace tavrune {
namespace {

/// Where the entry stands by its arrow keys.
std::string positionOf(MenuEntry entry) {
    int inMenu = -1;
    int inSubmenu = 0;
    for (const MenuLine& line : topicTree()) {
        if (line.parent == Subject::None) {
            ++inMenu;
            inSubmenu = 0;
        } else {
            ++inSubmenu;
        }
        if (line.entry == entry) {
            return std::to_string(inMenu) + " " + std::to_string(inSubmenu);
        }
    }
    return "- -";
}

/// "Roedder" -> "roedder"
std::string fileName(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return name;
}

/// True if the control stands in a help panel, of which a form may have several.
bool isOfTheHelp(const QWidget& control) {
    for (const QWidget* around = control.parentWidget(); around != nullptr; around = around->parentWidget()) {
        if (around->objectName().endsWith("helpPanel", Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

void print(PageName page, const char* kind, const std::string& file) {
    SeededDraws draws(1);
    const std::unique_ptr<Page> made = makePage(page, draws);
    const auto boxes = made->findChildren<AnswerBox*>();
    const auto buttons = made->findChildren<Button*>();
    const auto asked =
        std::count_if(boxes.begin(), boxes.end(), [](const auto* box) { return !isOfTheHelp(*box); });
    const auto steps = std::count_if(buttons.begin(), buttons.end(), [](const auto* button) {
        return button->caption() == "Vis" && isOfTheHelp(*button);
    });
    std::cout << kind << ' ' << file << ' ' << positionOf(page) << ' ' << asked << ' ' << steps << ' '
              << textOf(page) << ' ' << made->windowTitle().toStdString() << '\n';
}

void printAll() {
    print(PageName::Opstart, "page", "opstart");
    print(PageName::Form1, "page", "form1");
    print(PageName::Form2, "page", "form2");
#define TAVRUNE_PRINT(form, ...) print(PageName::form, "form", fileName(#form));
    TAVRUNE_EXERCISES(TAVRUNE_PRINT)
#undef TAVRUNE_PRINT
    std::cout << "exit luk " << positionOf({}) << " 0 0 Luk\n";
}

}  // namespace
}  // namespace tavrune

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    tavrune::printAll();
}
