#include "controls/answer_box.h"

#include <limits>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPalette>

#include "controls/text.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

QString withPoints(QString typed) { return typed.replace(',', '.'); }

/// Alt and a character: a way to a button, and no text, where the button is hidden too.
bool isAccessKey(const QKeyEvent& event) {
    constexpr Qt::KeyboardModifiers kNoMatter = Qt::ShiftModifier | Qt::KeypadModifier;
    return (event.modifiers() & ~kNoMatter) == Qt::AltModifier && !event.text().isEmpty() &&
           event.text().front().isPrint();
}

}  // namespace

AnswerBox::AnswerBox(QWidget* parent) : QLineEdit(parent), Control(this) {
    setMaxLength(std::numeric_limits<int>::max());
    setFont(designFont());
    setTextMargins(0, 0, 0, 0);
    QPalette blackOnWhite = palette();
    blackOnWhite.setColor(QPalette::Text, kBlack);
    blackOnWhite.setColor(QPalette::Base, kWhite);
    setPalette(blackOnWhite);
}

double AnswerBox::value() const { return Val(content()); }

void AnswerBox::setContent(std::string_view content) { setText(fromUtf8(content)); }

void AnswerBox::setBackColour(const QColor& colour) {
    setPaletteColour(QPalette::Base, colour);
    // What the colour says to the eye.
    setAccessibleDescription(colour == kRed ? "forkert" : "");
}

void AnswerBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (!event->isAutoRepeat()) {
            emit enterPressed();
        }
        return;
    }
    if (isAccessKey(*event)) {
        event->ignore();
        return;
    }
    if (event->text().contains(',')) {
        QKeyEvent point(event->type(), Qt::Key_Period, event->modifiers(), withPoints(event->text()),
                        event->isAutoRepeat(), static_cast<quint16>(event->count()));
        QLineEdit::keyPressEvent(&point);
        event->setAccepted(point.isAccepted());
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void AnswerBox::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent filtered(event->preeditString(), event->attributes());
    filtered.setCommitString(withPoints(event->commitString()), event->replacementStart(),
                             event->replacementLength());
    QLineEdit::inputMethodEvent(&filtered);
    event->setAccepted(filtered.isAccepted());
}

}  // namespace tavrune
