#include "support/proof.h"

#include <gtest/gtest.h>

namespace tavrune::test {
namespace {

TEST(ExceptionsOfAProof, AreToldWithTheirShare) {
    Exceptions exceptions;
    EXPECT_EQ(exceptions.text(4), "none");
    exceptions.meet("rounded up");
    EXPECT_EQ(exceptions.text(4), "1 rounded up (25 %)");
    EXPECT_EQ(exceptions.text(40'000), "1 rounded up (0.0025 %)");
    EXPECT_EQ(exceptions.text(2'000'000), "1 rounded up (less than 0.0001 %)");
    exceptions.meet("ending the program");
    EXPECT_EQ(exceptions.text(4), "1 ending the program (25 %); 1 rounded up (25 %)");
}

}  // namespace
}  // namespace tavrune::test
