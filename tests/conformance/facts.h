#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shell/page_name.h"

namespace tavrune::test {

/// In place of a box's name: the first, or the last, of those that are shown, in the order of the designer
/// file.
inline constexpr const char* kByOrder = "(by its order)";

/// What is told of every exercise form alike: how its controls act that have the same names on all. The
/// defaults are those of a form without particulars.
struct FormFacts {
    PageName page;
    /// One label for both verdicts.
    bool hasOneLabel = true;
    /// "FORKERT" starts in a darker red, until the opening.
    bool darkUntilTheOpening = false;
    /// Enter in the last box goes on to "&Ny opgave" where "&OK" is hidden.
    bool lastBoxGoesOn = false;
    std::string lastBox = kByOrder;
    /// The box that has the focus after a new exercise; empty where the exercise decides.
    std::string firstBox = kByOrder;
    /// The option to choose before there is anything to judge; empty if there is none.
    std::string option{};
    /// One help panel whatever the exercise, with a close button.
    bool hasOnePanel = true;
    /// The boxes that the exercise itself fills, to tell what is given.
    int filledBoxes = 0;

    /// Some exercises end the program with a failure of the arithmetic, as they are drawn or in a step of
    /// their worked solution.
    bool mayFail = false;

    [[nodiscard]] std::string right() const { return hasOneLabel ? "verdict" : "right"; }
    [[nodiscard]] std::string wrong() const { return hasOneLabel ? "verdict" : "wrong"; }
};

inline void PrintTo(const FormFacts& facts, std::ostream* out) { *out << textOf(facts.page); }

/// A row for every exercise form; one without particulars has the defaults.
[[nodiscard]] const std::vector<FormFacts>& allForms();

/// A page's name as the names of tests can hold it: "afsaet".
[[nodiscard]] std::string asciiNameOf(PageName page);

/// The same for a test that is run over the forms.
[[nodiscard]] std::string asciiName(const testing::TestParamInfo<FormFacts>& row);

}  // namespace tavrune::test
