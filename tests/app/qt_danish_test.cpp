#include "app/qt_danish.h"

#include <memory>

#include <QCoreApplication>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>

#include <gtest/gtest.h>

#include "app/pages.h"
#include "app/program.h"
#include "support/form_driver.h"

namespace tavrune {
namespace {

using test::settle;

/// Is asked before the words of the application object, which may have been read by now.
class Danish : public testing::Test {
protected:
    void SetUp() override { QCoreApplication::installTranslator(&danish); }

    QtDanish danish{QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
};

TEST_F(Danish, IsNotReadForTheStartPage) {
    SeededDraws draws{1};
    Program program{draws};
    program.open(PageName::Opstart);
    settle();
    EXPECT_TRUE(program.window()->isVisible());
    EXPECT_TRUE(danish.isEmpty());
}

TEST_F(Danish, IsNotReadForTheDirectionOfReading) {
    EXPECT_EQ(QCoreApplication::translate("QGuiApplication", "QT_LAYOUT_DIRECTION"), "QT_LAYOUT_DIRECTION");
    EXPECT_TRUE(danish.isEmpty());
}

TEST_F(Danish, IsReadForTheMenuOfAField) {
    QLineEdit field;
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    EXPECT_TRUE(menu->actions().constFirst()->text().startsWith("&Fortryd"))
        << menu->actions().constFirst()->text().toStdString();
    EXPECT_FALSE(danish.isEmpty());
}

TEST_F(Danish, IsReadForTheNamesOfKeys) {
    EXPECT_EQ(QKeySequence(Qt::Key_Space).toString(QKeySequence::NativeText), "Mellemrum");
    EXPECT_FALSE(danish.isEmpty());
}

TEST_F(Danish, HasNoWordsForThePages) {
    EXPECT_TRUE(danish.translate("tavrune::Opstart", "Velkommen til", nullptr, -1).isNull());
    EXPECT_TRUE(danish.isEmpty());
}

TEST_F(Danish, HasNothingForAWordThatIsNotQts) {
    EXPECT_TRUE(danish.translate(nullptr, "Tavrune", nullptr, -1).isNull());
    EXPECT_TRUE(danish.translate("QLineEdit", "Tavrune", nullptr, -1).isNull());
}

TEST(DanishWithoutItsFile, LeavesEveryWordAsItIs) {
    const QtDanish nothing("/nowhere");
    EXPECT_TRUE(nothing.translate("QLineEdit", "&Undo", nullptr, -1).isNull());
    EXPECT_TRUE(nothing.isEmpty());
}

}  // namespace
}  // namespace tavrune
