#pragma once

#include <cmath>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/proof.h"
#include "topics/addition/addition_model.h"

namespace tavrune::test {

/// Each of the first fits and stays white, each of the others neither.
inline void expectJudged(const Target& target, std::initializer_list<double> fit,
                         std::initializer_list<double> wrong) {
    for (const double typed : fit) {
        EXPECT_TRUE(target.isFit(typed) && !target.isMarked(typed)) << typed;
    }
    for (const double typed : wrong) {
        EXPECT_TRUE(!target.isFit(typed) && target.isMarked(typed)) << typed;
    }
}

/// True if the field takes what `shown` writes of it, typed again.
template <class Shown>
[[nodiscard]] bool takesItsOwn(const AnswerField& field, Shown shown) {
    const double typed = typedAgain(NumberText(shown(field)));
    return std::isfinite(field.target.value) && field.target.isFit(typed) && !field.target.isMarked(typed);
}

/// True if what lies just past the tolerance is wrong, and turns red.
[[nodiscard]] inline bool refusesWhatIsPastIt(const Target& target) {
    // Kept: what is compared by the chained rule decides nothing, but turns red.
    const bool isFit = target.rule == Rule::Chained;
    const double past = target.rule == Rule::Exactly ? 0.001 : kJustPast;
    for (const double wrong :
         {target.value - 1, target.value - past, target.value + past, target.value + 1}) {
        if (target.isFit(wrong) != isFit || !target.isMarked(wrong)) {
            return false;
        }
    }
    return true;
}

/// True if the exercise is solved by the targets of its fields, and not with another first number, which is
/// then the only one that is wrong.
template <class State>
[[nodiscard]] bool isSolvedByTargets(const State& state, const std::vector<AnswerField>& fields) {
    std::vector<double> typed;
    for (const AnswerField& field : fields) {
        typed.push_back(field.target.value);
    }
    std::vector<bool> isRight(fields.size(), true);
    const bool isSolved = judge(state, typed) == solvedIfAllRight(isRight);
    typed.front() += 1;
    isRight.front() = false;
    return isSolved && judge(state, typed) == solvedIfAllRight(isRight);
}

/// What is wrong with how the fields of an answer are judged; empty if nothing is.
template <class Shown>
[[nodiscard]] std::string flawOfJudging(const std::vector<AnswerField>& fields, Shown shown) {
    const auto told = [](const char* flaw, const AnswerField& field) {
        std::ostringstream text;
        text << flaw << ": row " << field.row << ", slot " << static_cast<int>(field.slot) << ", "
             << field.target.value;
        return text.str();
    };
    std::string flaw;
    for (const char* mark : {".", ","}) {
        const DecimalMark inUse(mark);
        for (const AnswerField& field : fields) {
            if (!takesItsOwn(field, shown)) {
                flaw = told("refuses its own", field);
            }
        }
    }
    for (const AnswerField& field : fields) {
        if (!refusesWhatIsPastIt(field.target)) {
            flaw = told("takes what is past its tolerance, or leaves it white", field);
        }
    }
    return flaw;
}

}  // namespace tavrune::test
