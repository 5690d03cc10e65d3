#include "graph/colour_name.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "controls/control.h"

namespace tavrune {
namespace {

TEST(ColourName, IsThatOfAColourThatIsDrawnWith) {
    EXPECT_STREQ(nameOf(kBlack), "sort");
    EXPECT_STREQ(nameOf(kGreen), "grøn");
    EXPECT_STREQ(nameOf(kBlue), "blå");
    EXPECT_STREQ(nameOf(kWhite), "hvid");
    EXPECT_STREQ(nameOf(rgb(0, 190, 0)), "grøn");
    EXPECT_STREQ(nameOf(rgb(255, 190, 0)), "gul");
}

TEST(ColourName, IsThatOfTheNearestForAnyOther) {
    EXPECT_STREQ(nameOf(rgb(250, 10, 5)), "rød");
    EXPECT_STREQ(nameOf(rgb(120, 130, 125)), "grå");
    EXPECT_STREQ(nameOf(rgb(10, 5, 240)), "blå");
}

TEST(ColourName, IsAnotherWhereAnotherColourIsNearer) {
    const std::vector<std::pair<QColor, std::string>> names{
        {rgb(228, 140, 0), "gul"},  {rgb(227, 140, 0), "brun"},   {rgb(228, 139, 0), "orange"},
        {rgb(80, 192, 64), "grå"},  {rgb(79, 192, 64), "grøn"},   {rgb(192, 65, 192), "grå"},
        {rgb(128, 194, 0), "brun"}, {rgb(192, 64, 192), "lilla"}, {rgb(127, 194, 0), "grøn"},
        {rgb(0, 255, 175), "grå"},  {rgb(0, 255, 174), "grøn"},   {rgb(120, 0, 64), "sort"},
        {rgb(121, 0, 64), "brun"},  {rgb(255, 45, 21), "rød"},    {rgb(255, 46, 21), "orange"},
        {rgb(0, 66, 0), "grøn"},    {rgb(0, 64, 0), "sort"}};
    for (const auto& [colour, name] : names) {
        EXPECT_EQ(nameOf(colour), name) << colour.name().toStdString();
    }
}

}  // namespace
}  // namespace tavrune
