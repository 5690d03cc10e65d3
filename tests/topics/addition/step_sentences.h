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

/// The method in three steps, in the words of the first two levels of horizontal addition.
inline void expectSharedMethod(const FormDriver& form) {
    const auto sentences = [&form](const char* name) {
        return form.label(name).text().simplified().toStdString();
    };
    EXPECT_EQ(sentences("pricesStepText"),
              "Bestem P-værdierne til de opgivne funktioners endepunkter vha. definitionsmængderne og indsæt "
              "dem i hjælpeskemaet efter størrelse. Hvis funktionerne er voksende, indsættes for nemheds "
              "skyld 10 som nederste værdi i hjælpeskemaet, ellers indsættes 0. Hvis der er en vandret linie "
              "indsættes dennes P-værdi to gange.");
    EXPECT_EQ(sentences("quantitiesStepText"),
              "Bestem for hver P-værdi de tilsvarende Q-værdier for hver funktion, indsæt dem i "
              "hjælpeskemaet under \"Q1\" og \"Q2\" og addér dem i \"Qtotal\". Hvis der er en vandret linie, "
              "indsættes 0 som første Q-værdi og uendeligt (oo) som anden.");
    EXPECT_EQ(sentences("sumStepText"),
              "Beregn den eller de resulterende funktioner ved at beregne forskrifterne for linierne mellem "
              "de samhørende Qtotal- og P-værdier.");
}

}  // namespace tavrune::test
