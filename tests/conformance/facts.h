#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shell/page_name.h"

namespace tavrune::test {

/// What is told of every exercise form alike: how its controls act that have the same names on all.
struct FormFacts {
    PageName page;
    /// One label for both verdicts.
    bool hasOneLabel;
    /// "FORKERT" starts in a darker red, until the opening.
    bool darkUntilTheOpening;
    /// Enter in the last box goes on to "&Ny opgave" where "&OK" is hidden.
    bool lastBoxGoesOn;
    std::string lastBox;
    /// The box that has the focus after a new exercise; empty where the exercise decides.
    std::string firstBox;
    /// The option to choose before there is anything to judge; empty if there is none.
    std::string option;
    /// One help panel whatever the exercise, with a close button.
    bool hasOnePanel;
    /// The boxes that the exercise itself fills, to tell what is given.
    int filledBoxes = 0;

    /// Some exercises end the program with a failure of the arithmetic, as they are drawn or in a step of
    /// their worked solution.
    bool mayFail = false;

    [[nodiscard]] std::string right() const { return hasOneLabel ? "verdict" : "right"; }
    [[nodiscard]] std::string wrong() const { return hasOneLabel ? "verdict" : "wrong"; }
};

inline void PrintTo(const FormFacts& facts, std::ostream* out) { *out << textOf(facts.page); }

/// A row for every exercise form.
[[nodiscard]] const std::vector<FormFacts>& allForms();

/// A page's name as the names of tests can hold it: "afsaet".
[[nodiscard]] std::string asciiNameOf(PageName page);

/// The same for a test that is run over the forms.
[[nodiscard]] std::string asciiName(const testing::TestParamInfo<FormFacts>& row);

}  // namespace tavrune::test
