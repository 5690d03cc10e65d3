#pragma once

#include <initializer_list>
#include <vector>

#include <gtest/gtest.h>

#include "numeric/judgement.h"
#include "numeric/text.h"

/// Answers and what is judged of them, for exercises that are solved where all is right.
namespace tavrune::test {

/// Whether each of the answers is judged so, value by value.
template <class State>
[[nodiscard]] testing::AssertionResult eachIs(const std::vector<bool>& isRight, const State& state,
                                              const std::vector<std::vector<double>>& answers) {
    for (const std::vector<double>& typed : answers) {
        if (judge(state, typed) != solvedIfAllRight(isRight)) {
            return testing::AssertionFailure() << testing::PrintToString(typed) << " is judged otherwise";
        }
    }
    return testing::AssertionSuccess();
}

/// Each of the texts is a whole answer.
template <class State>
[[nodiscard]] testing::AssertionResult eachTextIs(bool isRight, const State& state,
                                                  std::initializer_list<const char*> texts) {
    std::vector<std::vector<double>> answers;
    for (const char* text : texts) {
        answers.push_back({Val(text)});
    }
    return eachIs({isRight}, state, answers);
}

}  // namespace tavrune::test
