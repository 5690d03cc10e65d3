#include "shell/opstart.h"

#include <QGuiApplication>
#include <QMenuBar>
#include <QScrollArea>

#include <gtest/gtest.h>

#include "controls/label.h"
#include "support/looks.h"

namespace tavrune {
namespace {

struct ScreenRow {
    const char* name;
    QSize screen;
    double x, y, text;
};

class Screens : public testing::TestWithParam<ScreenRow> {};

TEST_P(Screens, StretchTheStartPage) {
    const ScreenStretch stretch = stretchFor(GetParam().screen);
    EXPECT_DOUBLE_EQ(stretch.x, GetParam().x);
    EXPECT_DOUBLE_EQ(stretch.y, GetParam().y);
    EXPECT_NEAR(stretch.text, GetParam().text, 1e-12);
}

TEST_P(Screens, PlaceEveryLabelByTheStretch) {
    const QSize designScreen(640, 480);
    Opstart design(designScreen);
    Opstart stretched(GetParam().screen);
    const auto labels = design.findChildren<Label*>();
    EXPECT_EQ(labels.size(), 6);
    for (const Label* label : labels) {
        const QRectF before = label->place();
        const auto* const after = stretched.findChild<Label*>(label->objectName());
        EXPECT_NEAR(after->place().left(), before.left() * GetParam().x, 1e-9);
        EXPECT_NEAR(after->place().width(), before.width() * GetParam().x, 1e-9);
        EXPECT_NEAR(after->place().top(), before.top() * GetParam().y, 1e-9);
        EXPECT_NEAR(after->place().height(), before.height() * GetParam().y, 1e-9);
        EXPECT_NEAR(after->textSize(), label->textSize() * GetParam().text, 1e-9);
    }
}

TEST_P(Screens, LeaveNoTextCutOffOrOverAnother) {
    Opstart page(GetParam().screen);
    page.resize(GetParam().screen);
    page.show();
    EXPECT_EQ(test::flawsOf(page), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Rows, Screens,
                         testing::Values(ScreenRow{"Design", {640, 480}, 1, 1, 1},
                                         ScreenRow{"Svga", {800, 600}, 1.25, 1.25, 1.25 * 0.95},
                                         ScreenRow{"Xga", {1024, 768}, 1.6, 1.6, 1.408},
                                         ScreenRow{"FullHd", {1920, 1080}, 3, 2.25, 1.8},
                                         ScreenRow{"Tall", {1080, 1920}, 1.6875, 4, 1.6875 * 0.8625},
                                         ScreenRow{"VeryWide", {3520, 1080}, 5.5, 2.25, 0.55},
                                         ScreenRow{"WiderThanTheFormulaReaches", {3840, 2160}, 6, 4.5, 1},
                                         ScreenRow{"FarWider", {7680, 2160}, 12, 4.5, 1}),
                         [](const auto& row) { return row.param.name; });

TEST(Opstart, MakesASizeOfTwelveFourteenAndAQuarterOnAScreenOf800) {
    Label label;
    label.setTextSize(12 * stretchFor({800, 600}).text);
    EXPECT_DOUBLE_EQ(label.textSize(), 14.25);
}

TEST(Opstart, KeepsTheSizeOfItsTextsOnAScreenThatTellsNoSize) { EXPECT_EQ(stretchFor({0, 0}).text, 1); }

struct LabelRow {
    const char* name;
    const char* text;
    QColor colour;
    bool bold;
    bool serif;
};

TEST(Opstart, GreetsInItsOwnTextsAndColours) {
    const Opstart page({640, 480});
    EXPECT_EQ(page.windowTitle().toStdString(), "Tavrune - Matematiktræningsprogram for økonomer");
    const QColor darkBlue(0, 0, 192);
    for (const LabelRow& row :
         {LabelRow{"welcome", "Velkommen til", {0, 0, 255}, true, false},
          LabelRow{"programName", "Tavrune 2.2", darkBlue, true, true},
          LabelRow{"subtitle", "MATEMATIKTRÆNINGSPROGRAM FOR ØKONOMER", darkBlue, true, true},
          LabelRow{"rights", "© 2005 Holdet bag Tavrune", darkBlue, false, true},
          LabelRow{"startHeading", "START AF PROGRAMMET:",
                   QGuiApplication::palette().color(QPalette::WindowText), true, true},
          LabelRow{
              "startHint", "Klik med musen på \"Indhold\" øverst til venstre ", {0, 0, 0}, false, true}}) {
        const auto* const label = page.findChild<Label*>(row.name);
        EXPECT_EQ(label->caption(), row.text);
        EXPECT_EQ(label->textColour(), row.colour) << row.name;
        EXPECT_EQ(label->font().bold(), row.bold) << row.name;
        EXPECT_EQ(label->font().family() == "Times New Roman", row.serif) << row.name;
        EXPECT_EQ(label->alignment() & Qt::AlignHCenter, Qt::AlignHCenter) << row.name;
        EXPECT_EQ(label->backColour(), QGuiApplication::palette().color(QPalette::Button)) << row.name;
    }
}

TEST(Opstart, StandsOnADarkGround) {
    const Opstart page({640, 480});
    const QWidget* const design = page.findChild<QScrollArea*>()->widget();
    EXPECT_EQ(design->palette().color(QPalette::Window), QColor(64, 64, 64));
    EXPECT_TRUE(design->autoFillBackground());
}

TEST(Opstart, IsTheOnePageWithASecondMenu) {
    Opstart page({640, 480});
    const auto menus = page.menuBar()->actions();
    ASSERT_EQ(menus.size(), 2);
    EXPECT_EQ(menus.at(1)->text().toStdString(), "&Om Tavrune");
    const auto entries = menus.at(1)->menu()->actions();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries.at(0)->text().toStdString(), "Om Tavrune");
    int asked = 0;
    QObject::connect(&page, &Page::aboutChosen, &page, [&asked] { ++asked; });
    entries.at(0)->trigger();
    EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace tavrune
