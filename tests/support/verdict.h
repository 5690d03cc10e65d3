#pragma once

#include <string>

#include <gtest/gtest.h>

#include "support/expect.h"

/// How a form stands once it has judged or given an answer.
namespace tavrune::test {

[[nodiscard]] inline bool isVerdictShown(const Student& form, bool isRight) {
    if (form.page().findChild<Label*>("verdict") == nullptr) {
        return form.isShown(isRight ? "right" : "wrong");
    }
    return form.isShown("verdict") && form.caption("verdict") == (isRight ? "RIGTIGT" : "FORKERT") &&
           form.label("verdict").backColour() == (isRight ? kGreen : kRed);
}

inline void expectOver(const Student& form) {
    expectHidden(form, {"ok", "giveAnswer"});
    EXPECT_TRUE(form.isShown("newExercise"));
    EXPECT_EQ(form.focus(), "newExercise");
    EXPECT_TRUE(form.redBoxes().empty());
}

/// "RIGTIGT" alone, no mark, and nothing left to do but the next exercise.
inline void expectSolved(const Student& form, const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    EXPECT_TRUE(isVerdictShown(form, true) && !isVerdictShown(form, false));
    expectOver(form);
}

/// No verdict, no mark, and nothing left to do but the next exercise.
inline void expectGiven(const Student& form, const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    EXPECT_TRUE(!isVerdictShown(form, true) && !isVerdictShown(form, false));
    expectOver(form);
}

/// "FORKERT" alone, and a way to another try or the answer. The marks are left to the caller.
inline void expectWrong(const Student& form, const std::string& focus,
                        const Where& where = Where::current()) {
    const testing::ScopedTrace asked(where.file_name(), static_cast<int>(where.line()), "asked here");
    EXPECT_TRUE(isVerdictShown(form, false) && !isVerdictShown(form, true));
    expectShown(form, {"ok", "giveAnswer"});
    EXPECT_EQ(form.focus(), focus);
}

}  // namespace tavrune::test
