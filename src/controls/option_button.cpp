#include "controls/option_button.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyleOptionButton>

#include "controls/access_key.h"

namespace tavrune {

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent), Control(this) {
    wear(designFont());
    // Otherwise buttons are filled with another colour of the palette.
    setBackgroundRole(QPalette::Window);
    resetBackColour();
}

void OptionButton::setChosen(bool chosen) {
    // An exclusive group does not let its chosen option be cleared.
    setAutoExclusive(chosen);
    setChecked(chosen);
    setAutoExclusive(true);
}

void OptionButton::setBackColour(const QColor& colour) {
    QPalette coloured = palette();
    coloured.setColor(QPalette::Window, colour);
    coloured.setColor(QPalette::WindowText, kWhite);
    setPalette(coloured);
    setAutoFillBackground(true);
    // For those who cannot see the colour.
    setAccessibleDescription("rigtigt svar");
}

void OptionButton::resetBackColour() {
    const QPalette system = QApplication::palette();
    QPalette neutral = palette();
    neutral.setColor(QPalette::Window, system.color(QPalette::Button));
    neutral.setColor(QPalette::WindowText, system.color(QPalette::ButtonText));
    setPalette(neutral);
    // A frame is shaded; the option would cover the shade.
    setAutoFillBackground(false);
    setAccessibleDescription("");
}

bool OptionButton::event(QEvent* event) {
    return clickedByAccessKey(*this, event) || QRadioButton::event(event);
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event->isAutoRepeat()) {
                click();
            }
            return;
        case Qt::Key_Up:
        case Qt::Key_Left:
            focusOnNeighbour(-1);
            return;
        case Qt::Key_Down:
        case Qt::Key_Right:
            focusOnNeighbour(1);
            return;
        default:
            QRadioButton::keyPressEvent(event);
    }
}

void OptionButton::initStyleOption(QStyleOptionButton* option) const {
    QRadioButton::initStyleOption(option);
    showFocusAlways(*option);
}

void OptionButton::focusOnNeighbour(int step) {
    const QList<OptionButton*> group =
        parentWidget()->findChildren<OptionButton*>(Qt::FindDirectChildrenOnly);
    const qsizetype count = group.size();
    qsizetype at = group.indexOf(this);
    do {
        at = (at + step + count) % count;
    } while (group[at] != this && !(group[at]->isVisible() && group[at]->isEnabled()));
    if (group[at] != this) {
        group[at]->setFocus(Qt::TabFocusReason);
    }
}

}  // namespace tavrune
