#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shell/page_name.h"

namespace tavrune::test {

/// What is told of every exercise form alike: which controls have which roles, and how the roles act.
struct FormFacts {
    PageName page;
    std::string newExercise;
    std::string ok;
    std::string giveAnswer;
    std::string help;
    std::string right;
    std::string wrong;
    /// "FORKERT" starts in a darker red, until the first tick.
    bool darkUntilFirstTick;
    /// Enter in the last box goes on to "&Ny opgave" where "&OK" is hidden.
    bool lastBoxGoesOn;
    std::string lastBox;
    /// The box that has the focus after a new exercise; empty where the exercise decides.
    std::string firstBox;
    /// The option to choose before there is anything to judge; empty if there is none.
    std::string option;
    /// The panel that help opens, and its close button; empty where it depends on the exercise, or there is
    /// none.
    std::string panel;
    std::string close;
    /// The boxes that the exercise itself fills, to tell what is given.
    int filledBoxes = 0;

    /// Some exercises end the program with a failure of the arithmetic, as they are drawn or in a step of
    /// their worked solution.
    bool mayFail = false;

    [[nodiscard]] bool hasOneLabel() const { return right == wrong; }
};

inline void PrintTo(const FormFacts& facts, std::ostream* out) { *out << textOf(facts.page); }

/// The forms that are built.
[[nodiscard]] std::vector<FormFacts> builtForms();

/// A page's name as the names of tests can hold it: "afsaet".
[[nodiscard]] std::string asciiNameOf(PageName page);

/// The same for a test that is run over the forms.
[[nodiscard]] std::string asciiName(const testing::TestParamInfo<FormFacts>& row);

}  // namespace tavrune::test
