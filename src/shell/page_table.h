#pragma once

namespace tavrune {

/// The subjects of the topic menu that have more than one form, and so a submenu.
enum class Subject { None, Andengradspolynomiet, Integralregning, LodretAddition, VandretAddition };

}  // namespace tavrune

// All exercise forms, one line each, in the order of the topic menu: the name of its class and of its
// `PageName`, its own name, its subject if that has a submenu, and the text of its menu entry. Menu, program,
// tests, benchmarks and fuzzers are made from this table. The title of a form is in its designer file.
#define TAVRUNE_EXERCISES(FORM)                                                                              \
    FORM(Afsaet, "afsæt", None, "Afsætningsfunktioner")                                                      \
    FORM(Roedder, "Rødder", Andengradspolynomiet, "Rødder")                                                  \
    FORM(Topp, "Topp", Andengradspolynomiet, "Toppunkt")                                                     \
    FORM(Rogt, "Rogt", Andengradspolynomiet, "Rødder og toppunkt")                                           \
    FORM(Brok, "Brok", None, "Brøkregning")                                                                  \
    FORM(Dlinie, "dlinie", None, "Den rette linie")                                                          \
    FORM(Diff, "Diff", None, "Differentialregning")                                                          \
    FORM(Konvert, "Konvert", None, "Funktionskonvertering")                                                  \
    FORM(Gtm, "Gtm", None, "Gennemsnit-total-marginal")                                                      \
    FORM(Integ, "Integ", Integralregning,                                                                    \
         "Niveau 1: Bestemt integrale af lineære funktioner og andengradspolynomier")                        \
    FORM(Integ2, "Integ2", Integralregning, "Niveau 2: Bestemt integrale af lineære funktioner med knæk")    \
    FORM(Lininter, "Lininter", None, "Lineær interpolation/ekstrapolation")                                  \
    FORM(Laddi1, "Laddi1", LodretAddition, "Niveau 1: Addering af to lineære funktioner")                    \
    FORM(Laddi2, "Laddi2", LodretAddition, "Niveau 2: Addering af to lineære funktioner med knæk")           \
    FORM(Vaddi1, "Vaddi1", VandretAddition, "Niveau 1: Addering af to lineære funktioner")                   \
    FORM(Vaddi2, "Vaddi2", VandretAddition, "Niveau 2: Addering af tre lineære funktioner")                  \
    FORM(Vaddi3, "Vaddi3", VandretAddition, "Niveau 3: Addering af to lineære funktioner, den ene med knæk") \
    FORM(Tomto, "tomto", None, "2 ligninger med 2 ubekendte")
