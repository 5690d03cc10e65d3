#include "app/program.h"

#include <QCoreApplication>

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
    connect(page_, &Page::zoomed, this, &Program::zoomAll);
    page_->setZoom(zoom_);
    page_->showMaximized();
    // The new page stands first, so that there is no moment without a window, in which the program would end.
    if (last != nullptr) {
        last->close();
    }
}

int Program::run() {
    connect(this, &Program::closeChosen, QCoreApplication::instance(), [] { QCoreApplication::exit(0); });
    open(PageName::Opstart);
    return QCoreApplication::exec();
}

void Program::zoomAll(ZoomStep step) {
    zoom_ = step;
    if (page_ != nullptr) {
        page_->setZoom(step);
    }
    if (about_ != nullptr) {
        about_->setZoom(step);
    }
}

void Program::openAbout() {
    if (about_ == nullptr) {
        about_ = new FrmAbout;
        about_->setZoom(zoom_);
        bindZoomKeys(
            about_, [this] { return zoom_; }, [this](ZoomStep step) { zoomAll(step); });
    }
    about_->setWindowState(about_->windowState() & ~Qt::WindowMinimized);
    about_->show();
    about_->raise();
    about_->activateWindow();
}

}  // namespace tavrune
