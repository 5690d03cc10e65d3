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
        // Otherwise the toolkit looks for a place for the focus as it goes.
        if (QWidget* const focused = last->focusWidget()) {
            focused->clearFocus();
        }
        layout()->removeWidget(last);
        last->hide();
        last->deleteLater();
    }
    layout()->addWidget(page);
    // Laid out once, at its final size.
    layout()->activate();
    setWindowTitle(page->windowTitle());
    page->show();
    page->takeFocus();
}

}  // namespace tavrune
