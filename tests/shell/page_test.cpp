#include "shell/page.h"

#include <QApplication>

#include <gtest/gtest.h>

#include "controls/answer_box.h"
#include "support/form_driver.h"

namespace tavrune {
namespace {

TEST(Page, IsBlackOnWhiteWhateverColoursAreInUse) {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    SeededDraws draws(1);
    const test::FormDriver form(PageName::Brok, draws);
    const QPalette& colours = form.box("numerator").palette();
    EXPECT_EQ(colours.color(QPalette::Base), kWhite);
    EXPECT_EQ(colours.color(QPalette::Text), kBlack);
    QApplication::setPalette(light);
}

}  // namespace
}  // namespace tavrune
