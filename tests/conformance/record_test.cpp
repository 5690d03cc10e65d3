// Every page as it was, to the last number: what a few exercises on it show, draw and say is compared with
// what is written down in record/. Whoever changes it on purpose has it written anew by script/record, and
// reads the change.

#include <gtest/gtest.h>

#include "conformance/facts.h"
#include "support/form_driver.h"
#include "support/page_record.h"
#include "support/written_down.h"

namespace tavrune {
namespace {

using test::Answer;
using test::FormDriver;
using test::FormFacts;
using test::PageRecord;

/// Of which no exercise fails on any form.
constexpr std::uint64_t kSeed = 4;
/// So many on each form.
constexpr std::size_t kExercises = 3;
/// So many more, of which few are written down.
constexpr int kLookedThrough = 40;

/// The answers of the exercises on a form, given to somebody else; as many as there are before it fails.
std::vector<Answer> rightAnswers(const FormFacts& facts) {
    std::vector<Answer> answers;
    SeededDraws draws(kSeed);
    const FormDriver form(facts.page, draws);
    while (answers.size() < kExercises && test::readFailure().message.empty()) {
        answers.push_back(form.giveUp(facts.option));
        form.click("newExercise");
    }
    static_cast<void>(test::readFailure());
    return answers;
}

/// Exercises on a page, one after the other.
class Play {
public:
    explicit Play(PageName page)
        : facts_(test::factsOf(page)),
          answers_(facts_ == nullptr ? std::vector<Answer>{} : rightAnswers(*facts_)),
          draws_(kSeed),
          form_(FormDriver::unshown(page, draws_)),
          record_(form_.page()) {}

    [[nodiscard]] std::vector<std::string> lines() {
        record_.note("is made");
        form_.show();
        bool goesOn = hasNotFailed("opens");
        for (std::size_t exercise = 0; exercise < answers_.size() && goesOn; ++exercise) {
            goesOn = play(exercise);
        }
        for (int exercise = 0; exercise < kLookedThrough && goesOn && facts_ != nullptr; ++exercise) {
            goesOn = lookThrough();
        }
        return record_.lines();
    }

private:
    /// Tries, then types what is right, or every other time has it given, and reads the help.
    bool play(std::size_t exercise) {
        return tryOut() && (exercise % 2 == 0 ? solve(answers_[exercise]) : click("giveAnswer")) &&
               click("ok") && readHelp() && click("newExercise");
    }

    /// Notes what an action has led to, messages too. Returns false once the arithmetic has failed.
    bool hasNotFailed(const std::string& action) {
        const std::string message = form_.answerMessage();
        const test::ProgramEnd end = test::readFailure();
        record_.note(action);
        for (const std::string& text : {message, end.message}) {
            if (!text.empty()) {
                record_.note("reads \"" + text + "\"");
            }
        }
        return end.message.empty();
    }

    /// Does nothing if the button is hidden.
    bool click(const std::string& button) {
        if (form_.find(button).isVisible()) {
            form_.click(button);
            return hasNotFailed(button);
        }
        return true;
    }

    /// Chooses one option after the other, with small numbers in the boxes.
    bool tryOut() {
        for (const OptionButton* option : test::inSight<OptionButton>(form_.page())) {
            if (!click(test::nameOf(*option)) || !answerSmall()) {
                return false;
            }
        }
        return answerSmall();
    }

    bool answerSmall() {
        for (const AnswerBox* box : form_.boxes()) {
            number_ = (5 * number_ + 3) % 16;
            form_.type(test::nameOf(*box), std::to_string(number_ - 5));
        }
        return hasNotFailed("types") && click("ok");
    }

    bool solve(const Answer& answer) {
        form_.write(answer);
        return hasNotFailed("types what is right");
    }

    bool readHelp() {
        if (!click("help")) {
            return false;
        }
        std::set<const Button*> pressed;
        while (const Button* const step = form_.nextStep(pressed)) {
            pressed.insert(step);
            if (!click(test::nameOf(*step))) {
                return false;
            }
        }
        Button* const close = form_.closeButton();
        if (close == nullptr) {
            return true;
        }
        // As by its key, from anywhere: where the focus goes then is the form's doing, and not the toolkit's.
        form_.find("newExercise").setFocus();
        close->click();
        return hasNotFailed(test::nameOf(*close));
    }

    /// Notes an exercise with its whole help if nothing that looks like it has come before: if other controls
    /// are in sight. Returns false once the arithmetic has failed.
    bool lookThrough() {
        form_.click("help");
        const std::string message = form_.answerMessage();
        form_.showAllSteps(facts_->except.failingStep);
        std::set<std::string> seen{message};
        for (const QWidget* widget : form_.page().findChildren<QWidget*>()) {
            if (widget->isVisible()) {
                seen.insert(test::nameOf(*widget));
            }
        }
        if (looks_.insert(seen).second) {
            record_.note("looks through an exercise of another kind " + message);
        } else {
            record_.skip();
        }
        if (Button* const close = form_.closeButton()) {
            close->click();
        }
        form_.click("newExercise");
        return test::readFailure().message.empty();
    }

    std::set<std::set<std::string>> looks_;
    int number_ = 1;
    const FormFacts* facts_;
    std::vector<Answer> answers_;
    SeededDraws draws_;
    FormDriver form_;
    PageRecord record_;
};

class RecordedPage : public testing::TestWithParam<PageName> {};

INSTANTIATE_TEST_SUITE_P(Pages, RecordedPage, testing::ValuesIn(allPages()),
                         [](const auto& row) { return test::asciiNameOf(row.param); });

TEST_P(RecordedPage, IsAsItIsWrittenDown) {
    test::expectAsWrittenDown(Play(GetParam()).lines(), test::asciiNameOf(GetParam()));
}

}  // namespace
}  // namespace tavrune
