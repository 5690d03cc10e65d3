#include "app/program.h"

#include "app/pages.h"

namespace tavrune {

Program::Program(Draws& draws) : draws_(draws) {}

Program::~Program() {
    delete page_;
    delete about_;
}

void Program::open(PageName name) {
    Page* const last = page_;
    page_ = makePage(name, draws_).release();
    page_->setAttribute(Qt::WA_DeleteOnClose);
    connect(page_, &Page::chosen, this, &Program::open);
    connect(page_, &Page::aboutChosen, this, &Program::openAbout);
    connect(page_, &Page::closeChosen, this, &Program::closeChosen);
    page_->showMaximized();
    // The new page stands first, so that there is no moment without a window, in which the program would end.
    if (last != nullptr) {
        last->close();
    }
}

void Program::openAbout() {
    if (about_ == nullptr) {
        about_ = new FrmAbout;
        about_->show();
    }
    about_->raise();
    about_->activateWindow();
}

}  // namespace tavrune
