#include "shell/form1.h"

#include "shell/running_text.h"
#include "shell/ui_form1.h"

namespace tavrune {

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
