#include "topics/addition/answer_rows.h"

#include <array>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

/// A page with two rows, of which the first has no start.
class TwoRows : public testing::Test {
protected:
    TwoRows() {
        for (const auto& [widget, name] : std::initializer_list<std::pair<QWidget*, const char*>>{
                 {&slope1, "segment1Slope"},
                 {&intercept1, "segment1Intercept"},
                 {&end1, "segment1End"},
                 {&zeroLessThan, "segment1ZeroLessThanQuantity"},
                 {&afterZero, "segment1StartLessOrEqual"},
                 {&endSign1, "segment1EndLessOrEqual"},
                 {&slope2, "segment2Slope"},
                 {&intercept2, "segment2Intercept"},
                 {&start2, "segment2Start"},
                 {&end2, "segment2End"},
                 {&validFor, "segment2ValidFor"},
                 {&startSign2, "segment2StartLessOrEqual"},
                 {&endSign2, "segment2EndLess"}}) {
            widget->setObjectName(name);
        }
        rows = AnswerRows::of(page);
    }

    QWidget page;
    AnswerBox slope1{&page}, intercept1{&page}, end1{&page}, slope2{&page}, intercept2{&page}, start2{&page},
        end2{&page};
    Label zeroLessThan{&page}, afterZero{&page}, endSign1{&page}, validFor{&page}, startSign2{&page},
        endSign2{&page};
    std::vector<AnswerBox*> boxes{&slope1, &intercept1, &end1, &slope2, &intercept2, &start2, &end2};
    AnswerRows rows;
};

TEST_F(TwoRows, AreFoundByTheirNamesInReadingOrder) {
    EXPECT_EQ(rows.count(), 2);
    EXPECT_EQ(rows.boxes(), boxes);
}

TEST_F(TwoRows, AreShownWithWhatStandsBetweenTheirBoxes) {
    rows.show(0, false, true);
    for (const QWidget* hidden :
         std::initializer_list<QWidget*>{&slope1, &intercept1, &end1, &zeroLessThan, &afterZero, &endSign1}) {
        EXPECT_TRUE(hidden->isHidden()) << hidden->objectName().toStdString();
    }
    rows.show(0, true, true);
    rows.show(1, true, false);
    for (const QWidget* hidden : std::initializer_list<QWidget*>{&end2, &endSign2}) {
        EXPECT_TRUE(hidden->isHidden()) << hidden->objectName().toStdString();
    }
    for (const QWidget* shown : std::initializer_list<QWidget*>{&slope1, &end1, &afterZero, &endSign1,
                                                                &slope2, &start2, &validFor}) {
        EXPECT_FALSE(shown->isHidden()) << shown->objectName().toStdString();
    }
}

TEST_F(TwoRows, ShowTheSignOfALoneStartByItself) {
    rows.showStartSign(1, false);
    EXPECT_TRUE(startSign2.isHidden());
    rows.show(1, true, true);
    EXPECT_TRUE(startSign2.isHidden());
    rows.showStartSign(1, true);
    EXPECT_FALSE(startSign2.isHidden());
    // The first row has none of its own.
    rows.showStartSign(0, false);
    EXPECT_FALSE(afterZero.isHidden());
}

TEST_F(TwoRows, FindTheBoxOfEachSlot) {
    EXPECT_EQ(rows.box(0, Slot::Slope), &slope1);
    EXPECT_EQ(rows.box(0, Slot::Intercept), &intercept1);
    EXPECT_EQ(rows.box(0, Slot::Start), nullptr);
    EXPECT_EQ(rows.box(0, Slot::End), &end1);
    EXPECT_EQ(rows.box(1, Slot::Slope), &slope2);
    EXPECT_EQ(rows.box(1, Slot::Start), &start2);
    EXPECT_THROW(static_cast<void>(rows.box(2, Slot::Slope)), std::out_of_range);
}

TEST_F(TwoRows, ReadWhatTheyBeginWith) {
    slope2.setContent("-1.5x");
    intercept2.setContent("7,9");
    EXPECT_EQ(rows.typed(1, Slot::Slope), -1.5);
    EXPECT_EQ(rows.typedSegment(1).slope, -1.5);
    EXPECT_EQ(rows.typedSegment(1).intercept, 7);
    EXPECT_EQ(rows.typedSegment(0).at(3), 0);
}

TEST_F(TwoRows, GoBackToOneBlankOnWhite) {
    for (AnswerBox* box : boxes) {
        box->setContent("12");
        box->mark(true);
    }
    rows.blank();
    for (const AnswerBox* box : boxes) {
        EXPECT_EQ(box->content(), " ");
        EXPECT_EQ(box->backColour(), kWhite);
    }
}

TEST_F(TwoRows, TurnWhiteWithoutLosingWhatIsTyped) {
    for (AnswerBox* box : boxes) {
        box->setContent("12");
        box->mark(true);
    }
    rows.whiten();
    for (const AnswerBox* box : boxes) {
        EXPECT_EQ(box->content(), "12");
        EXPECT_EQ(box->backColour(), kWhite);
    }
}

TEST_F(TwoRows, AreWrittenASlotAtATime) {
    rows.write(1, Slot::End, TableCell::unbounded());
    rows.write(0, Slot::Slope, -2.5);
    EXPECT_EQ(end2.content(), "oo");
    EXPECT_EQ(slope1.content(), "-2.5");
    rows.write(1, Slot::End, TableCell());
    EXPECT_EQ(end2.content(), "");
}

TEST_F(TwoRows, AreWrittenAFunctionAtATime) {
    rows.write(1, Piece{-2.5, 7});
    EXPECT_EQ(slope2.content(), "-2.5");
    EXPECT_EQ(intercept2.content(), "7");
    EXPECT_EQ(slope1.content(), "");
}

TEST_F(TwoRows, AreWrittenFromTheTargetsOfFields) {
    rows.write({{1, Slot::End, {5.33}}, {0, Slot::Slope, {-2}}});
    EXPECT_EQ(end2.content(), "5.33");
    EXPECT_EQ(slope1.content(), "-2");
    EXPECT_EQ(slope2.content(), "");
}

TEST_F(TwoRows, GiveTheBoxesOfFieldsInTheirOrder) {
    EXPECT_EQ(rows.boxes({{1, Slot::End, {5.33}}, {0, Slot::Slope, {-2}}}),
              (std::vector<AnswerBox*>{&end2, &slope1}));
    EXPECT_TRUE(rows.boxes(std::vector<AnswerField>()).empty());
}

TEST_F(TwoRows, NameTheirBoxesByTheOrderOfTheRows) {
    rows.nameShownBoxes();
    EXPECT_EQ(slope1.accessibleName(), "hældning for første stykke");
    EXPECT_EQ(end1.accessibleName(), "slut i Q for første stykke");
    EXPECT_EQ(intercept2.accessibleName(), "konstantled for andet stykke");
    EXPECT_EQ(start2.accessibleName(), "begyndelse i Q for andet stykke");
    slope1.hide();
    rows.nameShownBoxes();
    EXPECT_EQ(slope2.accessibleName(), "hældning");
    EXPECT_EQ(end2.accessibleName(), "slut i Q");
}

TEST(FunctionLabels, FillsItsGapsAndTellsTheWhole) {
    QWidget page;
    Label text(&page);
    Label slope(&page);
    Label intercept(&page);
    text.setObjectName("function2Text");
    slope.setObjectName("function2Slope");
    intercept.setObjectName("function2Intercept");
    FunctionLabels::of(page, "function2").tell("-3", "4", "Q > 0");
    EXPECT_EQ(slope.caption(), "-3");
    EXPECT_EQ(intercept.caption(), "4");
    EXPECT_EQ(text.accessibleName(), "P = -3Q + 4 for Q > 0");
}

TEST(HelpColumn, IsFoundByItsNameFromTheTop) {
    QWidget page;
    AnswerBox second(&page);
    AnswerBox first(&page);
    AnswerBox other(&page);
    first.setObjectName("price1");
    second.setObjectName("price2");
    other.setObjectName("totalQuantity1");
    EXPECT_EQ(helpColumnOf(page, "price"), (HelpColumn{&first, &second}));
}

TEST(WholeFunction, SaysWhatIsLaidOutInPieces) {
    EXPECT_EQ(wholeFunction("-3", "4", "Q ≥ 0, P ≥ 0"), "P = -3Q + 4 for Q ≥ 0, P ≥ 0");
    EXPECT_EQ(wholeFunction("2.5", "-4", "0 < Q"), "P = 2.5Q - 4 for 0 < Q");
}

TEST(HelpTable, IsFoundByTheNamesOfItsColumnsAndReadRowByRow) {
    QWidget page;
    AnswerBox price1(&page);
    AnswerBox price2(&page);
    AnswerBox total1(&page);
    AnswerBox total2(&page);
    price1.setObjectName("price1");
    price2.setObjectName("price2");
    total1.setObjectName("total1");
    total2.setObjectName("total2");
    const HelpTable table = helpTableOf(page, {"total", "price"});
    EXPECT_EQ(table, (HelpTable{{&total1, &total2}, {&price1, &price2}}));
    EXPECT_EQ(rowByRow(table), (std::vector<AnswerBox*>{&total1, &price1, &total2, &price2}));
}

TEST(HelpColumn, IsFilledFromTheTopAndBlankedWithoutLosingItsColour) {
    AnswerBox top;
    AnswerBox middle;
    AnswerBox bottom;
    const HelpColumn column{&top, &middle, &bottom};
    writeColumn(column, std::array<TableCell, 3>{TableCell(0.0), TableCell::unbounded(), TableCell::blank()});
    EXPECT_EQ(top.content(), "0");
    EXPECT_EQ(middle.content(), "oo");
    EXPECT_EQ(bottom.content(), " ");
    top.mark(true);
    blank({column});
    EXPECT_EQ(top.content(), " ");
    EXPECT_EQ(middle.content(), " ");
    EXPECT_EQ(bottom.content(), " ");
    EXPECT_EQ(top.backColour(), kRed);
}

}  // namespace
}  // namespace tavrune
