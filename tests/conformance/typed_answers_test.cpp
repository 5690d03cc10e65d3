// The answer that a form gives, typed into a second one with the same exercise.

#include <array>
#include <map>
#include <optional>
#include <set>

#include <gtest/gtest.h>

#include "conformance/facts.h"
#include "support/form_driver.h"
#include "support/lot.h"
#include "support/proof.h"
#include "support/record.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::FormDriver;
using test::FormFacts;
using test::typedAgain;

using Names = std::set<std::string>;

/// What "&Giv svaret" shows: the right option, if there are any, and what stands in the boxes.
struct Answer {
    std::string option;
    std::map<std::string, std::string> boxes;
};

/// The boxes in sight but for those of a help table, which is nobody's answer.
Names visibleBoxes(const FormDriver& form) {
    Names names;
    for (const AnswerBox* box : form.page().findChildren<AnswerBox*>()) {
        if (box->isVisible() && !box->accessibleName().startsWith(QStringLiteral("hjælpeskema"))) {
            names.insert(box->objectName().toStdString());
        }
    }
    return names;
}

Names redBoxes(const FormDriver& form) {
    Names red;
    for (const std::string& name : visibleBoxes(form)) {
        if (form.box(name).isMarked()) {
            red.insert(name);
        }
    }
    return red;
}

bool isLaddi(PageName page) { return page == PageName::Laddi1 || page == PageName::Laddi2; }

class TypedAnswers : public testing::TestWithParam<FormFacts> {
protected:
    [[nodiscard]] const FormFacts& facts() const { return GetParam(); }

    [[nodiscard]] bool isSolved(const FormDriver& form) const {
        // A right half of an answer may show its verdict too, and leaves "&OK" standing.
        return form.isShown(facts().right()) && !form.isShown("ok") &&
               (!facts().hasOneLabel || form.caption(facts().right()) == "RIGTIGT");
    }

    /// Gives up on the exercise, and reads what was right.
    [[nodiscard]] Answer learnAnswer(const FormDriver& form) const {
        if (!facts().option.empty()) {
            form.click(facts().option);
        }
        int number = 987654;
        for (const std::string& name : visibleBoxes(form)) {
            form.box(name).setContent(std::to_string(number += 1013));
        }
        form.click("ok");
        form.click("giveAnswer");
        Answer answer;
        for (const OptionButton* option : form.page().findChildren<OptionButton*>()) {
            if (option->backColour() == kGreen || (option->isChosen() && answer.option.empty())) {
                answer.option = option->objectName().toStdString();
            }
        }
        for (const std::string& name : visibleBoxes(form)) {
            answer.boxes[name] = form.box(name).content();
        }
        return answer;
    }

    /// Chooses and types the answer as it was shown; a box that it does not name keeps what it holds.
    static void type(const FormDriver& form, const Answer& answer) {
        if (!answer.option.empty()) {
            form.click(answer.option);
        }
        for (const std::string& name : visibleBoxes(form)) {
            if (const auto shown = answer.boxes.find(name); shown != answer.boxes.end()) {
                form.type(name, shown->second);
            }
        }
    }

    /// The boxes that turn red where `moved` holds a wrong number and all others the right one.
    [[nodiscard]] Names redFor(const FormDriver& form, const std::string& moved) const {
        if (facts().page == PageName::Brok) {
            // It is the fraction that is wrong.
            return visibleBoxes(form);
        }
        return {moved};
    }

    /// Where two functions are added by their prices, a place between two segments decides nothing, though it
    /// turns red once anything else is wrong: then the first of these boxes is made wrong as well.
    [[nodiscard]] std::optional<std::string> decidingBoxFor(const FormDriver& form,
                                                            const std::string& moved) const {
        if (!isLaddi(facts().page) || form.box(moved).accessibleName().startsWith(QStringLiteral("hæld")) ||
            form.box(moved).accessibleName().startsWith(QStringLiteral("konst"))) {
            return std::nullopt;
        }
        for (const std::string& name : visibleBoxes(form)) {
            if (form.box(name).accessibleName().startsWith(QStringLiteral("hæld"))) {
                return name;
            }
        }
        return std::nullopt;
    }

    /// Moves one box after the other past its tolerance.
    void expectEachBoxToMatter(const FormDriver& form, const Answer& answer) {
        const auto moved = [&](const std::string& box) {
            const double past = ++boxesMoved % 2 == 0 ? 0.011 : -0.011;
            return NumberText(typedAgain(answer.boxes.at(box)) + past);
        };
        for (const std::string& box : visibleBoxes(form)) {
            if (!answer.boxes.contains(box)) {
                continue;
            }
            Names red = redFor(form, box);
            form.type(box, moved(box));
            const std::optional<std::string> other = decidingBoxFor(form, box);
            if (other) {
                form.type(*other, moved(*other));
                red.insert(*other);
            }
            form.click("ok");
            ASSERT_FALSE(isSolved(form)) << box;
            ASSERT_TRUE(form.isShown(facts().wrong())) << box;
            ASSERT_EQ(redBoxes(form), red) << box << " for " << answer.boxes.at(box);
            form.type(box, answer.boxes.at(box));
            if (other) {
                form.type(*other, answer.boxes.at(*other));
            }
        }
    }

    /// Why the right answer, typed and judged, is taken for wrong on purpose; nothing if it is not.
    [[nodiscard]] std::optional<std::string> reasonForWrong(const FormDriver& form,
                                                            const Answer& answer) const {
        const Names red = redBoxes(form);
        switch (facts().page) {
            case PageName::Topp:
            case PageName::Rogt:
            case PageName::Lininter:
                for (const std::string& name : red) {
                    if (answer.boxes.at(name).front() != '-') {
                        return std::nullopt;
                    }
                }
                return red.empty() ? std::nullopt : std::optional("negative halves rounded away from zero");
            case PageName::Vaddi1:
                return red.empty() ? std::optional("judged by the upper end of an earlier exercise")
                                   : std::nullopt;
            case PageName::Vaddi3:
                return red.empty() ? std::optional("judged by a cell of the help table") : std::nullopt;
            default:
                return std::nullopt;
        }
    }

    /// True if a form has met a failure that ends the program.
    bool hasFailed() {
        if (test::readFailure().message.empty()) {
            return false;
        }
        EXPECT_TRUE(facts().mayFail);
        ++typed;
        exceptions.meet("ending the program by an overflow");
        return true;
    }

    /// Plays exercises of a seed on two forms, one after the other: what one leaves to the next is among it.
    /// Calls `judge` with each that is typed.
    template <class Judge>
    void play(std::uint64_t seed, Judge judge) {
        SeededDraws drawnForOne(seed);
        SeededDraws drawnForOther(seed);
        const FormDriver teacher(facts().page, drawnForOne);
        if (hasFailed()) {
            return;
        }
        const FormDriver student(facts().page, drawnForOther);
        for (int exercise = 0; exercise < kExercises; ++exercise) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", exercise " + std::to_string(exercise));
            if (exercise > 0) {
                teacher.click("newExercise");
                if (hasFailed()) {
                    return;
                }
                student.click("newExercise");
            }
            ++typed;
            const Answer answer = learnAnswer(teacher);
            type(student, answer);
            ASSERT_NO_FATAL_FAILURE(judge(student, answer, exercise));
        }
    }

    /// True if the answer as it stands is judged right; false if there is a reason for that it is not.
    bool isJudgedRight(const FormDriver& form, const Answer& answer) {
        form.click("ok");
        if (isSolved(form)) {
            return true;
        }
        const std::optional<std::string> reason = reasonForWrong(form, answer);
        EXPECT_TRUE(reason) << "red: " << testing::PrintToString(redBoxes(form)) << " of "
                            << testing::PrintToString(answer.boxes);
        exceptions.meet(reason.value_or("for no reason"));
        return false;
    }

    static constexpr int kExercises = 3;

    test::Exceptions exceptions;
    int typed = 0;
    int boxesMoved = 0;
};

INSTANTIATE_TEST_SUITE_P(Forms, TypedAnswers, testing::ValuesIn(test::allForms()), test::asciiName);

TEST_P(TypedAnswers, AreRightWithCommaAndPointAndWrongPastTheirToleranceInTheBoxThatTurnsRed) {
    const auto seeds = static_cast<std::uint64_t>(test::lotSize(7, 150));
    for (std::uint64_t seed = 1; seed <= seeds && !HasFailure(); ++seed) {
        // What is wrong as it stands says nothing about a box that is moved.
        std::array<bool, kExercises> isRight{};
        {
            const DecimalMark inUse(",");
            play(seed, [&](const FormDriver& form, const Answer& answer, int exercise) {
                isRight.at(static_cast<std::size_t>(exercise)) = isJudgedRight(form, answer);
            });
        }
        const DecimalMark inUse(".");
        play(seed, [&](const FormDriver& form, const Answer& answer, int exercise) {
            const bool expected = isRight.at(static_cast<std::size_t>(exercise));
            if (expected) {
                ASSERT_NO_FATAL_FAILURE(expectEachBoxToMatter(form, answer));
            }
            ASSERT_EQ(isJudgedRight(form, answer), expected);
        });
    }
    test::record({{"form", std::string(textOf(facts().page))},
                  {"typed", test::grouped(typed)},
                  {"moved", test::grouped(boxesMoved)},
                  {"exceptions", exceptions.text(typed)},
                  {"failures", std::to_string(test::failuresSoFar())}});
}

}  // namespace
}  // namespace tavrune
