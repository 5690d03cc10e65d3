#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "conformance/facts.h"
#include "support/form_driver.h"

namespace tavrune::test {

/// The name of a test that is run over the forms.
[[nodiscard]] inline std::string asciiName(const testing::TestParamInfo<FormFacts>& row) {
    return asciiNameOf(row.param.page);
}

/// A suite that is run over all forms.
class FormSuite : public testing::TestWithParam<FormFacts> {
protected:
    using BoxNames = std::set<std::string>;

    /// No message of a failure is left standing, and none came where none is told of.
    void TearDown() override { static_cast<void>(hasFailed()); }

    [[nodiscard]] static const FormFacts& facts() { return GetParam(); }

    [[nodiscard]] FormDriver open(std::uint64_t seed = 1) {
        draws_ = std::make_unique<SeededDraws>(seed);
        return {facts().page, *draws_};
    }

    /// True if the arithmetic has failed, which ends the program; its message is read then. The test fails
    /// where none is told of.
    [[nodiscard]] static bool hasFailed() {
        const ProgramEnd end = readFailure();
        if (end.message.empty()) {
            return false;
        }
        EXPECT_TRUE(facts().mayFail()) << end.message;
        EXPECT_EQ(end.status, 1);
        return true;
    }

    /// The boxes in sight but for those of a help table.
    [[nodiscard]] static BoxNames answerBoxes(const Student& seen) {
        BoxNames names;
        for (const AnswerBox* box : seen.boxes()) {
            if (!isOfHelpTable(*box)) {
                names.insert(nameOf(*box));
            }
        }
        return names;
    }

    /// Those of them that are red.
    [[nodiscard]] static BoxNames redAnswerBoxes(const Student& seen) {
        const BoxNames red = seen.redBoxes();
        BoxNames boxes = answerBoxes(seen);
        std::erase_if(boxes, [&red](const std::string& name) { return !red.contains(name); });
        return boxes;
    }

    /// True if the right answer, typed and judged, is taken for wrong just as its form may.
    [[nodiscard]] static bool isRefusedOnPurpose(const Student& seen, const Answer& answer) {
        const BoxNames red = redAnswerBoxes(seen);
        const auto isNegative = [&answer](const std::string& box) {
            return answer.boxes.at(box).front() == '-';
        };
        switch (facts().except.refusal) {
            case Refusal::NegativeHalves:
                return !red.empty() && std::all_of(red.begin(), red.end(), isNegative);
            case Refusal::EarlierEnd:
                return red.empty();
            case Refusal::HelpTableCell:
                return red.empty() && seen.isShown("segment3End") && !seen.isShown("segment4Slope");
            case Refusal::None:
                break;
        }
        return false;
    }

    /// `isTaken` tells whether the form has found the answer right that it gives for the same exercise.
    static void expectTaken(bool isTaken) {
        EXPECT_TRUE(isTaken || facts().except.refusal != Refusal::None) << "its own answer is not right";
    }

private:
    std::unique_ptr<SeededDraws> draws_;
};

}  // namespace tavrune::test
