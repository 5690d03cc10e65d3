#pragma once

#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "support/form_driver.h"
#include "support/lines.h"

namespace tavrune::test {

/// A step, by the name of its text, and how one of its sentences begins.
using StepSentence = std::pair<const char*, const char*>;

/// The sentences of the steps that the first two levels of horizontal addition share.
constexpr std::initializer_list<StepSentence> kSharedStepSentences{
    {"pricesStepText", "Bestem P-værdierne"},
    {"pricesStepText", "Hvis funktionerne er voksende"},
    {"pricesStepText", "Hvis der er en vandret linie"},
    {"quantitiesStepText", "Bestem for hver P-værdi"},
    {"quantitiesStepText", "Hvis der er en vandret linie"},
    {"sumStepText", "Beregn den eller de"},
};

inline void expectSentencesOnLinesOfTheirOwn(const FormDriver& form,
                                             std::initializer_list<StepSentence> sentences) {
    for (const auto& [step, beginning] : sentences) {
        EXPECT_TRUE(hasALineThatBegins(form.label(step), beginning)) << step << ": " << beginning;
    }
}

}  // namespace tavrune::test
