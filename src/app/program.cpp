#include "app/program.h"

#include <QCoreApplication>

#include "app/pages.h"
#include "controls/voice.h"
#include "shell/size_choice.h"

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
    connect(page, &Page::resized, this, &Program::resizeAbout);
    page->setZoom(zoom_);
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

void Program::zoomAll(Zoom zoom) {
    zoom_ = zoom;
    if (page() != nullptr) {
        page()->setZoom(zoom);
    } else if (!zoom.isFitted()) {
        resizeAbout(zoom.factor());
    }
}

void Program::resizeAbout(double factor) {
    if (about_ != nullptr) {
        about_->setFactor(factor);
    }
}

void Program::openAbout() {
    if (about_ == nullptr) {
        about_ = new FrmAbout;
        about_->setFactor(page()->menuFactor());
        const auto factor = [this] { return page() == nullptr ? about_->factor() : page()->menuFactor(); };
        new SizeChoice(about_, {.chosen = [this] { return zoom_; },
                                .factor = factor,
                                .menuFactor = factor,
                                .choose = [this](Zoom zoom) { zoomAll(zoom); }});
    }
    about_->setWindowState(about_->windowState() & ~Qt::WindowMinimized);
    about_->show();
    about_->raise();
    about_->activateWindow();
}

}  // namespace tavrune
