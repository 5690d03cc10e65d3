#include "shell/form1.h"

#include "shell/ui_form1.h"

namespace tavrune {
namespace {

/// Fills a label with text line by line, leaves gaps for the bold words, and places each bold word in its
/// gap.
class RunningText {
public:
    explicit RunningText(Label* text) : text_(text), metrics_(designFont()) {}

    void add(const QString& words);
    void addBold(Label* word);
    void endParagraph();
    void finish() { text_->setText(lines_.join('\n') + '\n' + line_); }
    /// All of it without gaps, the bold words in their places.
    [[nodiscard]] QString words() const { return words_; }

private:
    Label* text_;
    QFontMetrics metrics_;
    QStringList lines_;
    QString line_;
    QString words_;

    [[nodiscard]] bool fits(const QString& line) const {
        return metrics_.horizontalAdvance(line) <= text_->place().width();
    }
    /// The distance between two lines of a label.
    [[nodiscard]] double linePitch() const {
        const auto height = [this](const QString& text) { return metrics_.size({}, text).height(); };
        return (height("x\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx") - height("x")) / 10.0;
    }
    void breakLine() {
        lines_ << line_;
        line_.clear();
    }
};

void RunningText::add(const QString& words) {
    words_ += (words.startsWith(',') || words.startsWith('.') || words_.isEmpty() ? "" : " ") + words;
    const QStringList all = words.split(' ', Qt::SkipEmptyParts);
    for (const QString& word : all) {
        const QString separator = line_.isEmpty() || word.startsWith(',') || word.startsWith('.') ? "" : " ";
        if (!fits(line_ + separator + word)) {
            breakLine();
            line_ = word;
        } else {
            line_ += separator + word;
        }
    }
}

void RunningText::addBold(Label* word) {
    words_ += " " + word->text();
    const QString blank = " ";
    const double width = word->textWidth();
    QString gap = line_.isEmpty() ? "" : blank;
    const double room = text_->place().width();
    if (metrics_.horizontalAdvance(line_ + gap) + width > room) {
        breakLine();
        gap.clear();
    }
    const double left = metrics_.horizontalAdvance(line_ + gap);
    word->setLeft(text_->place().left() + left);
    word->setTop(text_->place().top() + static_cast<double>(lines_.size()) * linePitch());
    line_ += gap;
    while (metrics_.horizontalAdvance(line_) < left + width) {
        line_ += blank;
    }
}

void RunningText::endParagraph() {
    words_ += words_.endsWith('.') ? "" : ".";
    breakLine();
}

}  // namespace

Form1::Form1() : Page(PageName::Form1) {
    Ui::Form1 ui;
    setUp(ui);

    RunningText text(ui.exerciseText);
    text.add(
        "Programmet bliver ved med at stille nye opgaver inden for emnet, så længe det ønskes. "
        "En ny opgave får man stillet ved at klikke på");
    text.addBold(ui.newExerciseWord);
    text.endParagraph();
    text.add("Når svaret på opgaven er indtastet, altid med 2 decimalers nøjagtighed, klikkes på");
    text.addBold(ui.okWord);
    text.add(", hvorefter programmet fortæller, om svaret er rigtigt eller forkert.");
    text.endParagraph();
    text.add("Det er muligt at få det rigtige svar ved at klikke på");
    text.addBold(ui.giveAnswerWord);
    text.endParagraph();
    text.add("Det er også muligt at få hjælp til løsning af opgaven ved klik på");
    text.addBold(ui.helpWord);
    text.add(
        ". Hjælpefunktionen indeholder i de fleste tilfælde både en teoretisk fremgangsmåde og løsning af "
        "det aktuelle eksempel.");
    text.finish();
    ui.exerciseText->setAccessibleName(text.words());
    for (Label* word : {ui.newExerciseWord, ui.okWord, ui.giveAnswerWord, ui.helpWord}) {
        word->setDecorative(true);
    }

    setAccessibleDescription(
        "F2 siger opgaven igen på enhver side; to gange F2 fortæller, hvad graferne viser. Ctrl og plus gør "
        "siden større, Ctrl og minus mindre, og Ctrl og 9 tilpasser den til vinduet. F10 åbner menuen.");
    connect(ui.nextPage, &Button::clicked, this, [this] { emit chosen(PageName::Form2); });
    ui.nextPage->setFocus();
}

}  // namespace tavrune
