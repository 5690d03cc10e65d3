#pragma once

#include <string>

#include <gtest/gtest.h>

#include "support/form_driver.h"

/// How a form stands once it has judged or given an answer.
namespace tavrune::test {

[[nodiscard]] inline bool isVerdictShown(const FormDriver& f, bool isRight) {
    if (f.page().findChild<Label*>("verdict") == nullptr) {
        return f.isShown(isRight ? "right" : "wrong");
    }
    return f.isShown("verdict") && f.caption("verdict") == (isRight ? "RIGTIGT" : "FORKERT") &&
           f.label("verdict").backColour() == (isRight ? kGreen : kRed);
}

inline void expectOver(const FormDriver& f) {
    EXPECT_FALSE(f.isShown("ok"));
    EXPECT_FALSE(f.isShown("giveAnswer"));
    EXPECT_TRUE(f.isShown("newExercise"));
    EXPECT_EQ(f.focus(), "newExercise");
    EXPECT_TRUE(f.redBoxes().empty());
}

/// "RIGTIGT" alone, no mark, and nothing left to do but the next exercise.
inline void expectSolved(const FormDriver& f) {
    EXPECT_TRUE(isVerdictShown(f, true) && !isVerdictShown(f, false));
    expectOver(f);
}

/// No verdict, no mark, and nothing left to do but the next exercise.
inline void expectGiven(const FormDriver& f) {
    EXPECT_TRUE(!isVerdictShown(f, true) && !isVerdictShown(f, false));
    expectOver(f);
}

/// "FORKERT" alone, and a way to another try or the answer. The marks are left to the caller.
inline void expectWrong(const FormDriver& f, const std::string& focus) {
    EXPECT_TRUE(isVerdictShown(f, false) && !isVerdictShown(f, true));
    EXPECT_TRUE(f.isShown("ok"));
    EXPECT_TRUE(f.isShown("giveAnswer"));
    EXPECT_EQ(f.focus(), focus);
}

}  // namespace tavrune::test
