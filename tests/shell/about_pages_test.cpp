#include <optional>

#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "controls/voice.h"
#include "numeric/draws.h"
#include "shell/frm_about.h"
#include "support/expect.h"
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
    test::expectTexts(form, {{"programName", "Tavrune 2.1"},
                             {"subtitle", "Matematiktræningsprogram for økonomer"},
                             {"aboutHeading", "Om programmet"},
                             {"usageHeading", "Brug af programmet"}});
    EXPECT_EQ(
        form.caption("purposeText"),
        "Matematiktræningsprogrammet Tavrune er udviklet specielt til at indøve og træne en række "
        "grundlæggende regnefærdigheder og matematiske teknikker, som især anvendes inden for Managerial "
        "Economics.");
    EXPECT_EQ(
        form.caption("modulesText"),
        "Systemet består af 12 moduler, der hver især fokuserer på et bestemt teknisk/matematisk område, som "
        "brugeren måtte ønske at træne sine færdigheder indenfor.");
    EXPECT_EQ(
        form.caption("topicChoiceText"),
        "Hver af de 12 emner aktiveres ved at \"klikke\" på det pågældende emne i menuen \"Indhold\". For "
        "nogle emner vælges der sværhedsgrad.");
    EXPECT_EQ(form.caption("copyingTerms"),
              "Tavrune må frit kopieres til brug i undervisningen, når programmet ikke ændres.");
    test::expectTexts(form, {{"newExerciseWord", "\"Ny opgave\""},
                             {"okWord", "\"OK\""},
                             {"giveAnswerWord", "\"Giv svaret\""},
                             {"helpWord", "\"Hjælp\""}});
    EXPECT_EQ(form.button("nextPage").caption(), "&Næste side >");
}

TEST_F(AboutPages, FirstRunsItsTextAroundTheNamesOfTheButtons) {
    const FormDriver form(PageName::Form1, draws);
    QString running = form.label("exerciseText").text();
    EXPECT_EQ(
        running.simplified().toStdString(),
        "Programmet bliver ved med at stille nye opgaver inden for emnet, så længe det ønskes. En ny opgave "
        "får man stillet ved at klikke på Når svaret på opgaven er indtastet, altid med 2 decimalers "
        "nøjagtighed, klikkes på , hvorefter programmet fortæller, om svaret er rigtigt eller forkert. Det "
        "er muligt at få det rigtige svar ved at klikke på Det er også muligt at få hjælp til løsning af "
        "opgaven ved klik på . Hjælpefunktionen indeholder i de fleste tilfælde både en teoretisk "
        "fremgangsmåde og løsning af det aktuelle eksempel.");
    EXPECT_EQ(
        form.label("exerciseText").accessibleName().toStdString(),
        "Programmet bliver ved med at stille nye opgaver inden for emnet, så længe det ønskes. En ny opgave "
        "får man stillet ved at klikke på \"Ny opgave\". Når svaret på opgaven er indtastet, altid med 2 "
        "decimalers nøjagtighed, klikkes på \"OK\", hvorefter programmet fortæller, om svaret er rigtigt "
        "eller forkert. Det er muligt at få det rigtige svar ved at klikke på \"Giv svaret\". Det er også "
        "muligt at få hjælp til løsning af opgaven ved klik på \"Hjælp\". Hjælpefunktionen indeholder i de "
        "fleste tilfælde både en teoretisk fremgangsmåde og løsning af det aktuelle eksempel.");
}

TEST_F(AboutPages, SecondListsTheTwelveTopics) {
    const FormDriver form(PageName::Form2, draws);
    EXPECT_EQ(form.caption("topicsHeading"), "De 12 emner");
    const std::vector<std::string> topics{
        "Afsætningsfunktioner:  Fastlæggelse af lineære afsætningsfunktioner ud fra "
        "forskellige kombinationer af oplysninger såsom priser, mængder, priselasticiteter og "
        "hældningskoefficient.",
        "Andengradspolynomiet:  Træning i bestemmelse af andengradspolynomiets rødder og "
        "toppunkt.",
        "Brøkregning:  Øvelser i addition, subtraktion, multiplikation og division med brøker.",
        "Den rette linie:  Bestemmelse af den rette linies ligning ud fra forskellige "
        "oplysninger.",
        "Differentialregning:  Øvelser i at differentiere forskellige polynomier.",
        "Funktionskonvertering:  Konvertering af lineære funktioner fra én enhed til en anden.",
        "Gennemsnit-total-marginal:  En række økonomiske sammenhænge kan udtrykkes som "
        "gennemsnit-, total- eller marginalfunktioner. Her trænes den studerende i at "
        "konvertere mellem de tre funktioner.",
        "Integralregning:  Integration af simple polynomier, herunder intervalintegration. 2 "
        "niveauer.",
        "Lineær interpolation/ekstrapolation:  Øvelser i simpel lineær interpolation og "
        "ekstrapolation.",
        "Lodret addition:  Lodret addition af lineære funktioner. 2 niveauer.",
        "Vandret addition:  Vandret addition af lineære funktioner. 3 niveauer.",
        "2 ligninger med 2 ubekendte:  Træning i løsning af 2 ligninger med 2 ubekendte."};
    const std::array numbers{
        "demandFunctionsNumber",      "quadraticPolynomialNumber", "fractionsNumber",
        "straightLineNumber",         "differentiationNumber",     "functionConversionNumber",
        "averageTotalMarginalNumber", "integrationNumber",         "linearInterpolationNumber",
        "verticalAdditionNumber",     "horizontalAdditionNumber",  "twoEquationsNumber"};
    const std::array labels{"demandFunctions",      "quadraticPolynomial", "fractions",
                            "straightLine",         "differentiation",     "functionConversion",
                            "averageTotalMarginal", "integration",         "linearInterpolation",
                            "verticalAddition",     "horizontalAddition",  "twoEquations"};
    for (std::size_t i = 0; i < topics.size(); ++i) {
        EXPECT_EQ(form.caption(numbers.at(i)), std::to_string(i + 1) + ".");
        EXPECT_EQ(form.caption(labels.at(i)), topics[i]);
    }
    EXPECT_EQ(form.button("previousPage").caption(), "< &Sidste side");
}

TEST_F(AboutPages, LeadToEachOther) {
    const FormDriver first(PageName::Form1, draws);
    const FormDriver second(PageName::Form2, draws);
    std::vector<PageName> asked;
    for (const FormDriver* form : {&first, &second}) {
        QObject::connect(&form->page(), &Page::chosen, &form->page(),
                         [&asked](PageName name) { asked.push_back(name); });
    }
    first.click("nextPage");
    second.press("previousPage", Qt::Key_Return);
    EXPECT_EQ(asked, (std::vector{PageName::Form2, PageName::Form1}));
}

TEST(AboutBox, TellsWhoMadeTheProgram) {
    FrmAbout about;
    EXPECT_EQ(about.objectName(), "frmAbout");
    EXPECT_EQ(about.factor(), 1);
    EXPECT_EQ(about.windowTitle().toStdString(), "Om Tavrune");
    EXPECT_EQ(about.findChild<Label*>("programName")->caption(), "Tavrune 2.2");
    EXPECT_EQ(about.findChild<Label*>("subtitle")->caption(), "MATEMATIKTRÆNINGSPROGRAM FOR ØKONOMER");
    EXPECT_EQ(about.findChild<Label*>("rights")->caption(), "© 2005 Holdet bag Tavrune");
    EXPECT_EQ(about.findChild<Label*>("developers")->caption(), "Udviklet af holdet bag Tavrune");
    EXPECT_EQ(about.findChild<Label*>("collaborators")->caption(),
              "Opgaver, tekster og afprøvning: holdet bag Tavrune");
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

TEST(AboutBox, IsCentredWithItsFrameAsItOpens) {
    FrmAbout about;
    about.show();
    test::settle();
    EXPECT_NE(about.frameGeometry().size(), about.size());
    EXPECT_EQ(about.pos(), centredOn(about.screen()->geometry(), about.frameGeometry().size()));
}

TEST(AboutBox, IsNotMovedByAZoom) {
    FrmAbout about;
    about.show();
    test::settle();
    const QPoint before = about.pos();
    about.setFactor(1.25);
    test::settle();
    EXPECT_EQ(about.pos(), before);
}

TEST(AboutBox, IsCentredOnceAndNeverAgain) {
    FrmAbout about;
    about.show();
    test::settle();
    about.move(5, 6);
    about.hide();
    about.show();
    EXPECT_EQ(about.pos(), QPoint(5, 6));
}

TEST(AboutBox, StandsInTheMiddleOfTheScreen) {
    EXPECT_EQ(centredOn(QRect(0, 0, 800, 600), {420, 260}), QPoint(190, 170));
    EXPECT_EQ(centredOn(QRect(1000, 0, 640, 480), {420, 260}), QPoint(1110, 110));
}

TEST(AboutBox, StandsInTheMiddleOfTheScreenFromItsFirstPictureOn) {
    class FirstPicture : public QObject {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (event->type() == QEvent::Paint && !corner) {
                corner = static_cast<QWidget*>(watched)->pos();
            }
            return false;
        }
        std::optional<QPoint> corner;
    } first;
    FrmAbout about;
    about.installEventFilter(&first);
    about.show();
    test::settle();
    ASSERT_TRUE(first.corner.has_value());
    // But for the frame, whose size is not yet known.
    EXPECT_LT((*first.corner - about.pos()).manhattanLength(), 30);
}

TEST(AboutBox, HasOneSizeAndGoesAsItIsClosed) {
    const QPointer<FrmAbout> about = new FrmAbout;
    EXPECT_EQ(about->minimumSize(), about->size());
    EXPECT_EQ(about->maximumSize(), about->size());
    EXPECT_FALSE(about->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    about->show();
    about->close();
    test::settle();
    EXPECT_TRUE(about.isNull());
}

TEST(AboutBox, GrowsWithAllThatStandsOnIt) {
    FrmAbout about;
    about.setFactor(1.25);
    EXPECT_EQ(about.factor(), 1.25);
    const QList<Label*> labels = about.findChildren<Label*>();
    EXPECT_FALSE(labels.isEmpty());
    for (const Label* label : labels) {
        EXPECT_EQ(label->zoom(), 1.25);
    }
}

TEST(AboutBox, SaysItselfAsOftenAsItBecomesTheActiveWindow) {
    const QSignalSpy said(&Voice::instance(), &Voice::said);
    FrmAbout about;
    about.show();
    about.activateWindow();
    test::settle();
    ASSERT_EQ(said.size(), 1);
    EXPECT_TRUE(said[0][0].toString().contains("Udviklet af holdet bag Tavrune"));
    QWidget another;
    another.show();
    another.activateWindow();
    test::settle();
    about.setEnabled(false);
    about.setEnabled(true);
    EXPECT_EQ(said.size(), 1);
    about.activateWindow();
    test::settle();
    EXPECT_EQ(said.size(), 2);
    about.setEnabled(false);
    test::settle();
    EXPECT_EQ(said.size(), 2);
}

}  // namespace
}  // namespace tavrune
