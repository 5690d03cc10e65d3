#include "controls/option_button.h"

#include <QApplication>
#include <QKeyEvent>

#include "controls/access_key.h"

namespace tavrune {

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent), Control(this) {
    setFont(designFont());
    setAutoFillBackground(true);
    // Buttons are filled by another role unless told.
    setBackgroundRole(QPalette::Window);
    resetBackColour();
}

void OptionButton::setChosen(bool chosen) {
    // A group that has a choice lets go of it only while it is not exclusive.
    setAutoExclusive(chosen);
    setChecked(chosen);
    setAutoExclusive(true);
}

void OptionButton::setBackColour(const QColor& colour) {
    QPalette coloured = palette();
    coloured.setColor(QPalette::Window, colour);
    coloured.setColor(QPalette::WindowText, kWhite);
    setPalette(coloured);
}

void OptionButton::resetBackColour() {
    const QPalette system = QApplication::palette();
    QPalette neutral = palette();
    neutral.setColor(QPalette::Window, system.color(QPalette::Button));
    neutral.setColor(QPalette::WindowText, system.color(QPalette::ButtonText));
    setPalette(neutral);
}

bool OptionButton::event(QEvent* event) {
    return clickedByAccessKey(*this, event) || QRadioButton::event(event);
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (!event->isAutoRepeat()) {
            click();
        }
        return;
    }
    QRadioButton::keyPressEvent(event);
}

}  // namespace tavrune
