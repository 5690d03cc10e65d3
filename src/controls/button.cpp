#include "controls/button.h"

#include <QKeyEvent>

namespace tavrune {

Button::Button(QWidget* parent) : QPushButton(parent), Control(this) {
    setFont(designFont());
    setFocusPolicy(Qt::StrongFocus);
}

void Button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (!event->isAutoRepeat()) {
            click();
        }
        return;
    }
    QPushButton::keyPressEvent(event);
}

}  // namespace tavrune
