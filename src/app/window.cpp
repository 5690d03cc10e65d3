#include "app/window.h"

#include <QEvent>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>

namespace tavrune {

Window::Window() { setAttribute(Qt::WA_DeleteOnClose); }

void Window::hold(Page* page) {
    Page* const last = page_;
    page_ = page;
    if (last != nullptr) {
        // Otherwise Qt would move the focus from control to control while the page is hidden.
        if (QWidget* const focused = last->focusWidget()) {
            focused->clearFocus();
        }
    }
    // As it is put into the window, a page loses the focus that it has asked for.
    QWidget* const wanted = page->focusWidget();
    page->layout()->setMenuBar(nullptr);
    // Both delete what stood there before.
    setMenuBar(page->menuBar());
    setCentralWidget(page);
    if (last == nullptr) {
        // For a user who does not want the window to be as large as the screen.
        resize(sizeHint().boundedTo(screen()->availableSize()));
    }
    // Before it is shown, so that it is laid out only once.
    layout()->activate();
    setWindowTitle(page->windowTitle());
    page->show();
    page->takeFocus(wanted);
}

bool Window::event(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !hasBeenActive_ &&
        page_ != nullptr) {
        hasBeenActive_ = true;
        // After a reader has said the title.
        QTimer::singleShot(0, page_, &Page::sayOnOpening);
    }
    return QMainWindow::event(event);
}

}  // namespace tavrune
