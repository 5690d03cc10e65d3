#include "numeric/judgement.h"

#include <gtest/gtest.h>

namespace tavrune {
namespace {

TEST(Judgement, IsSolvedInTheCommonCaseWhereAllAreRight) {
    EXPECT_EQ(solvedIfAllRight({true, true}), (Judgement{{true, true}, true}));
    EXPECT_EQ(solvedIfAllRight({true, false}), (Judgement{{true, false}, false}));
    EXPECT_EQ(solvedIfAllRight({false}), (Judgement{{false}, false}));
}

TEST(Judgement, HasNothingThatIsWrongWhereNothingIsTyped) { EXPECT_TRUE(solvedIfAllRight({}).isSolved); }

TEST(Judgement, IsNotSolvedUntilItIsSaid) { EXPECT_FALSE(Judgement().isSolved); }

}  // namespace
}  // namespace tavrune
