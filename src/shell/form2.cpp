#include "shell/form2.h"

#include "shell/ui_form2.h"

namespace tavrune {

Form2::Form2() : Page(PageName::Form2) {
    Ui::Form2 ui;
    setUp(ui);
    connect(ui.previousPage, &Button::clicked, this, [this] { emit chosen(PageName::Form1); });
    ui.previousPage->setFocus();
}

}  // namespace tavrune
