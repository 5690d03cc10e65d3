#include <QTest>

#include <gtest/gtest.h>

#include "numeric/draws.h"
#include "shell/frm_about.h"
#include "shell/how_to_use.h"
#include "support/form_driver.h"
#include "support/looks.h"

namespace tavrune {
namespace {

using test::FormDriver;

class AboutPages : public testing::Test {
protected:
    SeededDraws draws{1};
};

TEST_F(AboutPages, FirstTellsOfTheProgramInItsOwnWords) {
    const FormDriver form(PageName::Form1, draws);
    EXPECT_EQ(form.page().windowTitle().toStdString(), "Tavrune - Om Tavrune");
    // Another version number than on the start page: kept.
    EXPECT_EQ(form.caption("Label1"), "Tavrune 2.1");
    EXPECT_EQ(form.caption("Label2"), "Matematiktræningsprogram for økonomer");
    EXPECT_EQ(form.caption("Label3"), "Om programmet");
    EXPECT_EQ(form.caption("Label12"), "Brug af programmet");
    EXPECT_EQ(form.caption("Label8"), "\"Ny opgave\"");
    EXPECT_EQ(form.caption("Label6"), "\"OK\"");
    EXPECT_EQ(form.caption("Label7"), "\"Giv svaret\"");
    EXPECT_EQ(form.caption("Label11"), "\"Hjælp\"");
    EXPECT_EQ(form.button("Command1").caption(), "&Næste side >");
}

TEST_F(AboutPages, FirstRunsItsTextAroundTheNamesOfTheButtons) {
    const FormDriver form(PageName::Form1, draws);
    QString running = form.label("Label9").text();
    EXPECT_EQ(
        running.simplified().toStdString(),
        "Programmet bliver ved med at stille nye opgaver inden for emnet, så længe det ønskes. En ny opgave "
        "får man stillet ved at klikke på Når svaret på opgaven er indtastet, altid med 2 decimalers "
        "nøjagtighed, klikkes på , hvorefter programmet fortæller, om svaret er rigtigt eller forkert. Det "
        "er muligt at få det rigtige svar ved at klikke på Det er også muligt at få hjælp til løsning af "
        "opgaven ved klik på . Hjælpefunktionen indeholder i de fleste tilfælde både en teoretisk "
        "fremgangsmåde og løsning af det aktuelle eksempel.");
}

TEST_F(AboutPages, SecondListsTheTwelveTopics) {
    const FormDriver form(PageName::Form2, draws);
    EXPECT_EQ(form.caption("Label25"), "De 12 emner");
    for (int i = 1; i <= 12; ++i) {
        EXPECT_EQ(form.caption("Label" + std::to_string(i)), std::to_string(i) + ".");
        EXPECT_NE(form.caption("Label" + std::to_string(12 + i)).find(":  "), std::string::npos) << i;
    }
    EXPECT_EQ(form.caption("Label24"),
              "2 ligninger med 2 ubekendte:  Træning i løsning af 2 ligninger med 2 ubekendte.");
    EXPECT_EQ(form.button("Command2").caption(), "< &Sidste side");
}

TEST_F(AboutPages, LeadToEachOther) {
    const FormDriver first(PageName::Form1, draws);
    const FormDriver second(PageName::Form2, draws);
    std::vector<PageName> asked;
    for (const FormDriver* form : {&first, &second}) {
        QObject::connect(&form->page(), &Page::chosen, &form->page(),
                         [&asked](PageName name) { asked.push_back(name); });
    }
    first.click("Command1");
    second.press("Command2", Qt::Key_Return);
    EXPECT_EQ(asked, (std::vector{PageName::Form2, PageName::Form1}));
}

TEST(AboutBox, TellsWhoMadeTheProgram) {
    FrmAbout about;
    EXPECT_EQ(about.windowTitle().toStdString(), "Om Tavrune");
    EXPECT_EQ(about.findChild<Label*>("Label2")->caption(), "Tavrune 2.2");
    EXPECT_EQ(about.findChild<Label*>("Label3")->caption(), "MATEMATIKTRÆNINGSPROGRAM FOR ØKONOMER");
    for (const Label* label : about.findChildren<Label*>()) {
        EXPECT_EQ(label->textColour(), QColor(0, 0, 192));
        EXPECT_EQ(label->font().family(), "Times New Roman");
    }
    EXPECT_TRUE(about.findChildren<QAbstractButton*>().isEmpty());
}

TEST_F(AboutPages, HaveNoTextCutOffOrOverAnother) {
    EXPECT_EQ(test::flawsOf(FormDriver(PageName::Form1, draws).page()), std::vector<std::string>{});
    EXPECT_EQ(test::flawsOf(FormDriver(PageName::Form2, draws).page()), std::vector<std::string>{});
    FrmAbout about;
    about.show();
    EXPECT_EQ(test::flawsOf(about), std::vector<std::string>{});
}

TEST(AboutBox, StandsInTheMiddleOfTheScreen) {
    EXPECT_EQ(centredOn(QRect(0, 0, 800, 600), {420, 260}), QPoint(190, 170));
    EXPECT_EQ(centredOn(QRect(1000, 0, 640, 480), {420, 260}), QPoint(1110, 110));
}

}  // namespace
}  // namespace tavrune
