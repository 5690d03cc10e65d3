#include "app/pages.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/forms.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/opstart.h"

namespace tavrune {
namespace {

/// Returns a new form. Its failures go to the application object, if that handles failures.
template <class Form>
std::unique_ptr<Page> makeForm(Draws& draws) {
    auto form = std::make_unique<Form>(draws);
    form->setFailureHandler(dynamic_cast<FailureHandler*>(QCoreApplication::instance()));
    return form;
}

}  // namespace

std::vector<PageName> allPages() {
    std::vector<PageName> pages{PageName::Opstart, PageName::Form1, PageName::Form2};
    pages.insert(pages.end(), kExercisePages.begin(), kExercisePages.end());
    return pages;
}

std::unique_ptr<Page> makePage(PageName name, Draws& draws) {
#define TAVRUNE_MAKE(form, ...) \
    case PageName::form:        \
        return makeForm<form>(draws);
    switch (name) {
        case PageName::Opstart:
            return std::make_unique<Opstart>(QGuiApplication::primaryScreen()->size());
        case PageName::Form1:
            return std::make_unique<Form1>();
        case PageName::Form2:
            return std::make_unique<Form2>();
        case PageName::FrmAbout:
            break;
            TAVRUNE_EXERCISES(TAVRUNE_MAKE)
    }
#undef TAVRUNE_MAKE
    return nullptr;
}

}  // namespace tavrune
