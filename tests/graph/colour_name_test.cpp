#include "graph/colour_name.h"

#include <gtest/gtest.h>

#include "controls/control.h"

namespace tavrune {
namespace {

TEST(ColourName, IsThatOfAColourThatIsDrawnWith) {
    EXPECT_STREQ(nameOf(kBlack), "sort");
    EXPECT_STREQ(nameOf(kGreen), "grøn");
    EXPECT_STREQ(nameOf(rgb(0, 190, 0)), "grøn");
    EXPECT_STREQ(nameOf(rgb(255, 190, 0)), "gul");
}

TEST(ColourName, IsThatOfTheNearestForAnyOther) {
    EXPECT_STREQ(nameOf(rgb(250, 10, 5)), "rød");
    EXPECT_STREQ(nameOf(rgb(120, 130, 125)), "grå");
    EXPECT_STREQ(nameOf(rgb(10, 5, 240)), "blå");
}

}  // namespace
}  // namespace tavrune
