#include "app/window.h"

#include <QVBoxLayout>

namespace tavrune {

Window::Window() {
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

void Window::hold(Page* page) {
    Page* const last = page_;
    page_ = page;
    if (last != nullptr) {
        // Otherwise Qt would move the focus from control to control while the page is hidden.
        if (QWidget* const focused = last->focusWidget()) {
            focused->clearFocus();
        }
        layout()->removeWidget(last);
        last->hide();
        last->deleteLater();
    }
    layout()->addWidget(page);
    // Before it is shown, so that it is laid out only once.
    layout()->activate();
    setWindowTitle(page->windowTitle());
    page->show();
    page->takeFocus();
}

}  // namespace tavrune
