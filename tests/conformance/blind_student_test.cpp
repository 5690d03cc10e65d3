// A student who knows of a page only what a screen reader is told solves every form.

#include "support/blind_student.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "conformance/form_suite.h"

namespace tavrune {
namespace {

using test::Answer;
using test::BlindStudent;
using test::FormDriver;

constexpr int kExercises = 6;

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? ": " : "; ") + name;
    }
    return text;
}

/// The verdict is said at once, before all that is new beside it.
void expectHeard(const std::vector<std::string>& heard, const std::string& verdict) {
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard.front().rfind(verdict + ".", 0), 0U) << heard.front() << "\n" << verdict;
}

std::vector<std::string> keysOf(const std::map<std::string, std::string>& fields) {
    std::vector<std::string> keys;
    for (const auto& [name, value] : fields) {
        keys.push_back(name);
    }
    return keys;
}

/// Answers what cannot be right, and hears so.
void tryInVain(BlindStudent& student) {
    if (const auto options = student.names(QAccessible::RadioButton); !options.empty()) {
        student.choose(options.front());
    }
    int place = 0;
    std::map<std::string, std::string> fields = student.fields();
    for (auto& [field, value] : fields) {
        value = test::wrongText(place++);
    }
    student.type(fields);
    static_cast<void>(student.heard());
    student.press("OK");
    const std::string verdict = "FORKERT" + joined(student.wrongFields());
    expectHeard(student.heard(), verdict);
    EXPECT_EQ(student.verdict(), verdict);
}

Answer answerOf(const BlindStudent& student) {
    student.press("Giv svaret");
    EXPECT_EQ(student.verdict(), "");
    Answer answer;
    for (const QAccessibleInterface* option : student.things(QAccessible::RadioButton)) {
        if (test::descriptionOf(*option) == "rigtigt svar") {
            answer.option = test::nameOf(*option);
        }
    }
    answer.boxes = student.fields();
    return answer;
}

/// The option that is right, or else the one that asks for just what the answer tells.
void chooseOption(const BlindStudent& student, const Answer& answer) {
    for (const std::string& option : student.names(QAccessible::RadioButton)) {
        if (!answer.option.empty() && option != answer.option) {
            continue;
        }
        student.choose(option);
        if (keysOf(student.fields()) == keysOf(answer.boxes)) {
            return;
        }
    }
}

/// True if the page finds the answer right.
bool repeat(BlindStudent& student, const Answer& answer) {
    chooseOption(student, answer);
    // Fields of the vain try may still stand beside the answer; they are not asked for here.
    student.type(answer.boxes);
    static_cast<void>(student.heard());
    student.press("OK");
    const std::string verdict = student.verdict();
    expectHeard(student.heard(), verdict);
    return verdict == "RIGTIGT";
}

class BlindStudentOn : public test::FormSuite {
protected:
    /// One student asks for the answers, another gives them in the same exercises. A form that may fail ends
    /// the lesson where it does.
    void teach(std::uint64_t seed) {
        SeededDraws sameDraws(seed);
        const FormDriver form = open(seed);
        const FormDriver sameForm(facts().page, sameDraws);
        if (hasFailed()) {
            return;
        }
        BlindStudent asking(form.page());
        BlindStudent answering(sameForm.page());
        for (int exercise = 0; exercise < kExercises; ++exercise) {
            tryInVain(asking);
            const bool isTaken = repeat(answering, answerOf(asking));
            expectTaken(isTaken);
            solved_ += isTaken ? 1 : 0;
            ++tried_;
            asking.press("Ny opgave");
            answering.press("Ny opgave");
            if (hasFailed()) {
                return;
            }
        }
    }

    int solved_ = 0;
    int tried_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Forms, BlindStudentOn, testing::ValuesIn(test::allForms()), test::asciiName);

TEST_P(BlindStudentOn, SolvesItByWhatIsTold) {
    for (const std::uint64_t seed : {31U, 32U, 33U}) {
        SCOPED_TRACE(seed);
        teach(seed);
    }
    EXPECT_GE(tried_, kExercises);
    EXPECT_GE(solved_ * 2, tried_) << solved_ << " of " << tried_;
}

}  // namespace
}  // namespace tavrune
