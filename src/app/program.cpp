#include "app/program.h"

#include <QCoreApplication>

#include "app/pages.h"
#include "controls/voice.h"

namespace tavrune {

Program::Program(Draws& draws) : draws_(draws) {}

Program::~Program() {
    delete window_;
    delete about_;
}

void Program::open(PageName name) {
    const Voice::Round round;
    Page* const page = makePage(name, draws_).release();
    connect(page, &Page::chosen, this, &Program::open);
    connect(page, &Page::aboutChosen, this, &Program::openAbout);
    connect(page, &Page::closeChosen, this, &Program::closeChosen);
    connect(page, &Page::zoomed, this, &Program::zoomAll);
    // A new page has the size of the design.
    if (zoom_ != page->zoom()) {
        page->setZoom(zoom_);
    }
    if (window_.isNull()) {
        window_ = new Window;
    }
    const bool isAnother = window_->isActiveWindow();
    window_->hold(page);
    // A window that becomes active says its title by itself.
    if (isAnother) {
        Voice::instance().say(page->windowTitle() + '.');
        page->sayOnOpening();
    }
    window_->showMaximized();
}

int Program::run() {
    connect(this, &Program::closeChosen, QCoreApplication::instance(), [] { QCoreApplication::exit(0); });
    open(PageName::Opstart);
    return QCoreApplication::exec();
}

void Program::zoomAll(ZoomStep step) {
    zoom_ = step;
    if (page() != nullptr) {
        page()->setZoom(step);
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
