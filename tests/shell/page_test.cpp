#include "shell/page.h"

#include <memory>

#include <QApplication>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "app/window.h"
#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/line_control.h"
#include "controls/panel.h"
#include "graph/graph_box.h"
#include "support/event_count.h"
#include "support/form_driver.h"

namespace tavrune {
namespace {

using test::settle;

/// A page with nothing on it.
class BarePage : public Page {
public:
    BarePage() : Page(PageName::Form2) {}

    using Page::design;
    using Page::focusNextPrevChild;
    using Page::tell;
};

TEST(Page, IsBlackOnWhiteWhateverColoursAreInUse) {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    SeededDraws draws(1);
    const test::FormDriver form(PageName::Brok, draws);
    const QPalette& colours = form.box("numerator").palette();
    EXPECT_EQ(colours.color(QPalette::Base), kWhite);
    EXPECT_EQ(colours.color(QPalette::Text), kBlack);
    EXPECT_FALSE(form.box("numerator").testAttribute(Qt::WA_SetPalette)) << "which takes time for each";
    for (const LineControl* line : form.page().findChildren<LineControl*>()) {
        EXPECT_EQ(line->colour(), kBlack);
    }
    QApplication::setPalette(light);
}

TEST(Page, HasItsOwnName) {
    SeededDraws draws(1);
    for (const PageName name : allPages()) {
        EXPECT_EQ(makePage(name, draws)->objectName().toStdString(), textOf(name));
    }
}

TEST(Page, GivesTheFocusToItsFirstControlAsItComes) {
    auto* const page = new BarePage;
    auto* const first = new Button(page->design());
    (new Button(page->design()))->move(0, 50);
    const std::unique_ptr<Window> window(new Window);
    window->hold(page);
    EXPECT_EQ(window->focusWidget(), first);
}

TEST(Page, GivesTheFocusToTheControlThatItHasAskedForAsItComes) {
    auto* const page = new BarePage;
    new Button(page->design());
    auto* const second = new Button(page->design());
    second->move(0, 50);
    second->setFocus();
    const std::unique_ptr<Window> window(new Window);
    window->hold(page);
    EXPECT_EQ(window->focusWidget(), second);
}

TEST(Page, LeavesTabAloneWhereNothingCanHaveTheFocus) {
    BarePage page;
    page.show();
    EXPECT_FALSE(page.focusNextPrevChild(true));
}

TEST(Page, KeepsTheFocusWhereAllIsCovered) {
    BarePage page;
    auto* const first = new Button(page.design());
    auto* const second = new Button(page.design());
    second->move(0, 50);
    auto* const panel = new Panel(page.design());
    panel->setGeometry(0, 0, 400, 400);
    page.show();
    first->setFocus();
    page.focusNextPrevChild(true);
    EXPECT_EQ(page.focusWidget(), first);
}

TEST(Page, LaysItsMessagesOutOnce) {
    BarePage page;
    page.show();
    page.tell("Hej");
    auto* const box = page.findChild<QMessageBox*>();
    ASSERT_NE(box, nullptr);
    const test::EventCount paints(*box, QEvent::Paint);
    settle();
    EXPECT_EQ(paints.count(), 1);
}

class PageOnDemand : public testing::Test {
protected:
    /// What F2 has said.
    [[nodiscard]] static QString heard(Page& page) {
        const QSignalSpy said(&Voice::instance(), &Voice::said);
        QTest::keyClick(&page, Qt::Key_F2);
        return said.isEmpty() ? QString() : said.last().front().toString();
    }

    SeededDraws draws{4};
};

TEST_F(PageOnDemand, SaysItsTaskAgainOnceTheFocusHasMoved) {
    const QSignalSpy listens(&Voice::instance(), &Voice::said);
    const test::FormDriver form(PageName::Lininter, draws);
    const QString task = heard(form.page());
    form.button("help").setFocus();
    EXPECT_EQ(heard(form.page()), task);
    form.page().menuBar()->setFocus();
    EXPECT_TRUE(heard(form.page()).contains("akse")) << "the menu is beside the page";
}

TEST_F(PageOnDemand, SaysItsTaskFirstWhereNothingHasTheFocus) {
    BarePage page;
    auto* const label = new Label(page.design());
    label->setAutoSize(true);
    label->setCaption("Bestem toppunktet");
    auto* const graph = new GraphBox(page.design());
    graph->setGeometry(0, 100, 100, 100);
    page.show();
    settle();
    EXPECT_EQ(heard(page), "Bestem toppunktet.");
    EXPECT_TRUE(heard(page).contains("akse"));
}

}  // namespace
}  // namespace tavrune
