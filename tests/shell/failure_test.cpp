#include "shell/failure.h"

#include <string>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

using Kind = ArithmeticFailure::Kind;

TEST(ArithmeticFailure, IsToldInDanishForEveryKind) {
    for (const Kind kind : {Kind::DivisionByZero, Kind::Overflow, Kind::TypeMismatch}) {
        EXPECT_NE(std::string(messageFor(kind)).find("lukker"), std::string::npos);
    }
}

}  // namespace
}  // namespace tavrune
