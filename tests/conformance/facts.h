#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "shell/page_name.h"

namespace tavrune::test {

/// In place of a box's name: the first, or the last, of those that are shown, in the order of the designer
/// file.
inline constexpr const char* kByOrder = "(by its order)";

/// Why a form, on purpose, may take its own answer, typed as it is shown, for wrong.
enum class Refusal {
    /// It does not.
    None,
    /// Halves below 0 are rounded away from 0 where they are shown, towards it where they are judged.
    NegativeHalves,
    /// The upper end of an earlier exercise stays judged.
    EarlierEnd,
    /// With three segments a cell of the help table is judged, which the given answer fills otherwise.
    HelpTableCell,
};

[[nodiscard]] const char* textOf(Refusal refusal);

/// What is excepted for a form from what the suites over all forms ask.
struct FormExceptions {
    /// The boxes that the exercise itself fills, to tell what is given.
    int filledBoxes = 0;
    Refusal refusal = Refusal::None;
    /// The step that fails where a price of the help table is blank, and ends the program. Such a form also
    /// has exercises that end it by an overflow as they are drawn. Empty for all that never fail.
    std::string failingStep{};
    /// A draw of just 0 makes a slope that is divided by, which ends the program.
    bool dividesByADrawOfZero = false;
    /// The help is a message, without a panel or a step.
    bool helpsByMessage = false;
    /// It is the fraction that is wrong, and turns red as a whole.
    bool isRedAsAWhole = false;
    /// A place between two segments decides nothing by itself, though it turns red once anything else is
    /// wrong.
    bool breaksDecideNothing = false;
    /// The access keys that two things in sight have, with those: captions ask for it. The button's it is,
    /// and F10 is the menu's.
    std::map<std::string, std::vector<std::string>> sharedKeys{};
};

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

    FormExceptions except{};

    [[nodiscard]] bool mayFail() const { return !except.failingStep.empty(); }
    [[nodiscard]] std::string right() const { return hasOneLabel ? "verdict" : "right"; }
    [[nodiscard]] std::string wrong() const { return hasOneLabel ? "verdict" : "wrong"; }
};

inline void PrintTo(const FormFacts& facts, std::ostream* out) { *out << textOf(facts.page); }

/// A row for every exercise form; one without particulars has the defaults.
[[nodiscard]] const std::vector<FormFacts>& allForms();

/// The row of a form; nothing for a page without an exercise.
[[nodiscard]] const FormFacts* factsOf(PageName page);

/// A page's name as the names of tests can hold it: "afsaet".
[[nodiscard]] std::string asciiNameOf(PageName page);

}  // namespace tavrune::test
