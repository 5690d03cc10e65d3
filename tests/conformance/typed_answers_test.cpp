// The answer that a form gives, typed into a second one with the same exercise.

#include <array>
#include <optional>
#include <set>

#include <gtest/gtest.h>

#include "conformance/form_suite.h"
#include "support/lot.h"
#include "support/proof.h"
#include "support/record.h"

namespace tavrune {
namespace {

using test::Answer;
using test::DecimalMark;
using test::FormDriver;
using test::typedAgain;

bool holdsAQuantity(const AnswerBox& box) {
    return !box.accessibleName().startsWith(QStringLiteral("hæld")) &&
           !box.accessibleName().startsWith(QStringLiteral("konst"));
}

class TypedAnswers : public test::FormSuite {
protected:
    [[nodiscard]] static bool isSolved(const FormDriver& form) {
        // A right half of an answer may show its verdict too, and leaves "&OK" standing.
        return form.verdict() == "RIGTIGT" && !form.isShown("ok");
    }

    /// The boxes that turn red where `moved` holds a wrong number and all others the right one.
    [[nodiscard]] static BoxNames redFor(const FormDriver& form, const std::string& moved) {
        return facts().except.isRedAsAWhole ? answerBoxes(form) : BoxNames{moved};
    }

    /// The box that is made wrong beside `moved`, where that decides nothing by itself: the first slope.
    [[nodiscard]] static std::optional<std::string> decidingBoxFor(const FormDriver& form,
                                                                   const std::string& moved) {
        if (!facts().except.breaksDecideNothing || !holdsAQuantity(form.box(moved))) {
            return std::nullopt;
        }
        for (const std::string& name : answerBoxes(form)) {
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
        for (const std::string& box : answerBoxes(form)) {
            if (!answer.boxes.contains(box)) {
                continue;
            }
            BoxNames red = redFor(form, box);
            form.type(box, moved(box));
            const std::optional<std::string> other = decidingBoxFor(form, box);
            if (other) {
                form.type(*other, moved(*other));
                red.insert(*other);
            }
            form.click("ok");
            ASSERT_FALSE(isSolved(form)) << box;
            ASSERT_TRUE(form.isShown(facts().wrong())) << box;
            ASSERT_EQ(redAnswerBoxes(form), red) << box << " for " << answer.boxes.at(box);
            form.type(box, answer.boxes.at(box));
            if (other) {
                form.type(*other, answer.boxes.at(*other));
            }
        }
    }

    /// True if a form has met a failure that ends the program, which is an exception to be told.
    bool hasEnded() {
        if (!hasFailed()) {
            return false;
        }
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
        if (hasEnded()) {
            return;
        }
        const FormDriver student(facts().page, drawnForOther);
        for (int exercise = 0; exercise < kExercises; ++exercise) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", exercise " + std::to_string(exercise));
            if (exercise > 0) {
                teacher.click("newExercise");
                if (hasEnded()) {
                    return;
                }
                student.click("newExercise");
            }
            ++typed;
            const Answer answer = teacher.giveUp(facts().option);
            student.write(answer);
            ASSERT_NO_FATAL_FAILURE(judge(student, answer, exercise));
        }
    }

    /// True if the answer as it stands is judged right; false if there is a reason for that it is not.
    bool isJudgedRight(const FormDriver& form, const Answer& answer) {
        form.click("ok");
        if (isSolved(form)) {
            return true;
        }
        const bool isOnPurpose = isRefusedOnPurpose(form, answer);
        EXPECT_TRUE(isOnPurpose) << "red: " << testing::PrintToString(redAnswerBoxes(form)) << " of "
                                 << testing::PrintToString(answer.boxes);
        exceptions.meet(isOnPurpose ? textOf(facts().except.refusal) : "for no reason");
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
