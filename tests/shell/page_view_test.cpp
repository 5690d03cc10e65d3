#include "shell/page_view.h"

#include <QLineEdit>
#include <QScrollBar>

#include <gtest/gtest.h>

#include "support/student.h"

namespace tavrune {
namespace {

using test::settle;

/// A view of 400 by 300 pixels of a page of 2000 by 2000, with a field on it that has the focus.
class ScrolledView : public testing::Test {
protected:
    ScrolledView() {
        view.setNeeded({2000, 2000});
        view.resize(400, 300);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        // Has the focus only when it is given to it.
        field->setFocusPolicy(Qt::NoFocus);
        view.show();
        settle();
    }

    /// Where the view stands once the field has its place and is brought into sight.
    QPoint cornerFor(const QRect& place) {
        scrollTo({0, 0});
        field->setGeometry(place);
        field->setFocus();
        view.showFocus();
        return corner();
    }

    void scrollTo(QPoint corner) {
        view.horizontalScrollBar()->setValue(corner.x());
        view.verticalScrollBar()->setValue(corner.y());
    }
    [[nodiscard]] QPoint corner() const {
        return {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()};
    }

    QWidget* page = new QWidget;
    QLineEdit* field = new QLineEdit(page);
    PageView view{page, nullptr};
};

TEST_F(ScrolledView, ScrollsAsFarAsToSeeTheFocusWithFiftyPixelsRoundIt) {
    EXPECT_EQ(cornerFor({60, 60, 100, 20}), QPoint(0, 0));
    EXPECT_EQ(cornerFor({1000, 800, 100, 20}), QPoint(1049 + 100 - 400, 809 + 60 - 300));
}

TEST_F(ScrolledView, HasTheMiddleOfALargerControlInItsOwn) {
    EXPECT_EQ(cornerFor({1000, 800, 600, 400}), QPoint(1299 - 200, 999 - 150));
}

TEST_F(ScrolledView, StaysWhereNothingHasTheFocus) {
    scrollTo({70, 80});
    view.showFocus();
    EXPECT_EQ(corner(), QPoint(70, 80));
}

TEST_F(ScrolledView, HasTheFocusInSightOnceItOrThePageHasAnotherSize) {
    const QPoint seen = cornerFor({1000, 800, 100, 20});
    scrollTo({0, 0});
    view.setNeeded({2500, 2500});
    EXPECT_EQ(corner(), seen);
    scrollTo({0, 0});
    view.setNeeded({2500, 2500});
    EXPECT_EQ(corner(), QPoint(0, 0)) << "which is none";
    view.resize(400, 301);
    EXPECT_EQ(corner(), seen - QPoint(0, 1));
}

TEST_F(ScrolledView, GivesThePageItsRoomAtOnce) {
    view.setNeeded({3000, 2800});
    EXPECT_EQ(page->size(), QSize(3000, 2800));
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 3000 - 400);
}

TEST_F(ScrolledView, CanBeMadeSmallAndHasNoFrameAndNoFocus) {
    view.resize(10, 10);
    EXPECT_EQ(view.size(), QSize(240, 160));
    EXPECT_EQ(view.viewport()->geometry(), view.rect());
    EXPECT_EQ(view.focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace tavrune
