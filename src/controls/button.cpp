#include "controls/button.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

#include "controls/access_key.h"

namespace tavrune {

Button::Button(QWidget* parent) : QPushButton(parent), Control(this) { wear(designFont()); }

bool Button::event(QEvent* event) { return clickedByAccessKey(*this, event) || QPushButton::event(event); }

void Button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) {
            click();
        }
        return;
    }
    QPushButton::keyPressEvent(event);
}

void Button::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    showFocusAlways(*option);
}

}  // namespace tavrune
