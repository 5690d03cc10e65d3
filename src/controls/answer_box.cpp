#include "controls/answer_box.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPalette>

#include "controls/text.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// The distance from the edge of a box to its text, in units. QLineEdit leaves as many pixels at every zoom;
/// what larger zooms need more is a margin.
constexpr double kTextIndent = 3;

QString withPoints(QString typed) { return typed.replace(',', '.'); }

/// Returns whether the key is Alt with a character. Such a key is no text, even if its button is hidden.
bool isAccessKey(const QKeyEvent& event) {
    constexpr Qt::KeyboardModifiers kNoMatter = Qt::ShiftModifier | Qt::KeypadModifier;
    return (event.modifiers() & ~kNoMatter) == Qt::AltModifier && !event.text().isEmpty() &&
           event.text().front().isPrint();
}

/// Returns whether text is black on white in every state of a box. On a page it is: boxes inherit its
/// palette.
bool isBlackOnWhite(const QPalette& palette) {
    constexpr std::array kStates{QPalette::Active, QPalette::Inactive, QPalette::Disabled};
    return std::all_of(kStates.begin(), kStates.end(), [&palette](QPalette::ColorGroup state) {
        return palette.color(state, QPalette::Text) == kBlack &&
               palette.color(state, QPalette::Base) == kWhite;
    });
}

}  // namespace

AnswerBox::AnswerBox(QWidget* parent) : QLineEdit(parent), Control(this) {
    setMaxLength(std::numeric_limits<int>::max());
    // The page shows it, with entries of its own.
    setContextMenuPolicy(Qt::NoContextMenu);
    wear(designFont());
    if (!isBlackOnWhite(palette())) {
        setPaletteColour(QPalette::Text, kBlack);
        setPaletteColour(QPalette::Base, kWhite);
    }
}

double AnswerBox::value() const { return Val(content()); }

void AnswerBox::setContent(std::string_view content) { setText(fromUtf8(content)); }

void AnswerBox::mark(bool wrong) {
    if (isMarked_ == wrong) {
        return;
    }
    isMarked_ = wrong;
    setPaletteColour(QPalette::Base, wrong ? kRed : kWhite);
    // For those who cannot see the colour.
    setAccessibleDescription(wrong ? "forkert" : "");
}

void AnswerBox::fontHasChanged() {
    const int margin = qRound(kTextIndent * (zoom() - 1));
    if (textMargins().left() != margin) {
        setTextMargins(margin, 0, margin, 0);
    }
}

void AnswerBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
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
}

std::vector<double> valuesOf(const std::vector<AnswerBox*>& boxes) {
    std::vector<double> values;
    std::transform(boxes.begin(), boxes.end(), std::back_inserter(values),
                   [](const AnswerBox* box) { return box->value(); });
    return values;
}

}  // namespace tavrune
