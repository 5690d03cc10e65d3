#include "controls/spoken.h"

#include <random>
#include <string>

#include <QRegularExpression>
#include <QString>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

struct Line {
    const char* text;
    const char* words;
};

void PrintTo(const Line& line, std::ostream* out) { *out << line.text; }

class Spoken : public testing::TestWithParam<Line> {};

TEST_P(Spoken, SaysWhatIsMeant) { EXPECT_EQ(spoken(GetParam().text).toStdString(), GetParam().words); }

INSTANTIATE_TEST_SUITE_P(
    Polynomials, Spoken,
    testing::Values(Line{"-2Q²+3Q-4", "minus 2 Q i anden plus 3 Q minus 4"}, Line{"aQ³", "a Q i tredje"},
                    Line{"P =  -0,7Q + 4.5", "P lig med minus 0,7 Q plus 4.5"},
                    Line{"d = b ² - 4 · a · c ", "d lig med b i anden minus 4 gange a gange c"},
                    Line{"a1Q + b1 = a2Q + b2 =>", "a1 Q plus b1 lig med a2 Q plus b2 medfører"},
                    Line{"2xⁿ", "2 x i n'te"}, Line{"(-3)²", "parentes minus 3 parentes slut i anden"},
                    Line{"P'= 3aQ³ + 2bQ", "P mærke lig med 3 a Q i tredje plus 2 b Q"},
                    Line{"P'(2)=31", "P mærke af 2 lig med 31"}, Line{"P'(Q)", "P mærke af Q"},
                    Line{"P(w)-P(v)", "P af w minus P af v"}, Line{"P1  dQ+", "P1 dQ plus"},
                    Line{"MC = d(TVC)/dQ =", "MC lig med d TVC divideret med dQ lig med"}));

INSTANTIATE_TEST_SUITE_P(
    Signs, Spoken,
    testing::Values(Line{"5*3", "5 gange 3"}, Line{"1/2", "1 divideret med 2"},
                    Line{"a1/a2 ≠ c1/c2", "a1 divideret med a2 forskellig fra c1 divideret med c2"},
                    Line{"5 - 5/-5", "5 minus 5 divideret med minus 5"},
                    Line{"0<Q≤6", "0 mindre end Q mindre end eller lig med 6"},
                    Line{"Q >= 0, P ≥ 0", "Q større end eller lig med 0, P større end eller lig med 0"},
                    Line{"d > 0: A)", "d større end 0: A)"}, Line{"+-6", "plus minus 6"}, Line{"-", "minus"},
                    Line{"/", "divideret med"}, Line{"<", "mindre end"}, Line{"α", "alfa"},
                    Line{"αQ+β", "alfa Q plus beta"}, Line{"½", "en halv"}, Line{"√16", "kvadratroden af 16"},
                    Line{"∫ p dQ", "integralet af p dQ"}, Line{"for oo>Q", "for uendelig større end Q"}));

INSTANTIATE_TEST_SUITE_P(
    Brackets, Spoken,
    testing::Values(Line{"(2/3)·Q³", "parentes 2 divideret med 3 parentes slut gange Q i tredje"},
                    Line{"4 · (-3) · 6", "4 gange minus 3 gange 6"},
                    Line{"4(-3)", "4 parentes minus 3 parentes slut"}, Line{"(MC)", "MC"},
                    Line{"a*(b - (c + d))",
                         "a gange parentes b minus parentes c plus d parentes slut parentes slut"},
                    Line{"fra ( 0 ; 5,5 ) til ( oo ; 5 ).", "fra 0 semikolon 5,5 til uendelig semikolon 5."},
                    Line{"(P1, Q1)", "P1 komma Q1"},
                    Line{"Toppunkt: (Q;P)=(", "Toppunkt: Q semikolon P lig med"}, Line{";", "semikolon"},
                    Line{")", ""}, Line{"(", ""}, Line{"A)", "A)"}, Line{"styk (Q).", "styk (Q)."},
                    Line{"uendeligt (oo) ved", "uendeligt (o o) ved"},
                    Line{"(grønt integrale) = -4", "(grønt integrale) lig med minus 4"}));

INSTANTIATE_TEST_SUITE_P(
    Prose, Spoken,
    testing::Values(Line{"X-aksen og TVC-funktionen", "X-aksen og TVC-funktionen"},
                    Line{"Qtotal- og P-værdier", "Qtotal- og P-værdier"},
                    Line{"med x -  og y - aksen", "med x - og y - aksen"}, Line{"og/eller", "og/eller"},
                    Line{"Q eller K", "Q eller K"}, Line{"på Q's plads", "på Q's plads"},
                    Line{"'Rødder' eller 'Q'", "'Rødder' eller 'Q'"}, Line{"&Næste side >", "&Næste side >"},
                    Line{"1.-koordinatet", "1.-koordinatet"}, Line{"", ""}, Line{"   ", ""}));

INSTANTIATE_TEST_SUITE_P(Names, Spoken,
                         testing::Values(Line{"Qα", "Q alfa"}, Line{"MC = P'", "MC lig med P mærke"},
                                         Line{"P′ = 2", "P mærke lig med 2"}, Line{"'Q'", "'Q'"},
                                         Line{"Q'", "Q mærke"}, Line{"Qtotal1 - 2", "Qtotal1 minus 2"},
                                         Line{"a1Q2 - c", "a1 Q2 minus c"}, Line{"abc1Q-2", "abc1Q-2"}));

INSTANTIATE_TEST_SUITE_P(
    SignsBetween, Spoken,
    testing::Values(Line{"Q>=0", "Q større end eller lig med 0"}, Line{"2=", "2 lig med"}, Line{"; 2", "; 2"},
                    Line{"a -", "a minus"}, Line{"a + -", "a plus minus"}, Line{"- a", "minus a"},
                    Line{"pris - 2", "pris minus 2"}, Line{"pris-2", "pris-2"}, Line{"pris -", "pris -"},
                    Line{"- pris", "- pris"}, Line{"– 2", "minus 2"}, Line{"/ 2", "/ 2"}, Line{"2 /", "2 /"},
                    Line{"pris / 2", "pris / 2"}, Line{"2/pris", "2/pris"}, Line{"2 <", "2 mindre end"},
                    Line{"< 2", "mindre end 2"}, Line{"pris <", "pris <"}, Line{"*", "gange"},
                    Line{"2 *", "2 gange"}, Line{"pris > pris", "pris > pris"},
                    Line{"4/-2", "4 divideret med minus 2"}, Line{"4*-2", "4 gange minus 2"},
                    Line{"pris * -2", "pris gange minus 2"}));

INSTANTIATE_TEST_SUITE_P(
    Parts, Spoken,
    testing::Values(Line{"- brøk: 1 over 2", "minus brøk: 1 over 2"},
                    Line{"- kvadratroden af 2", "minus kvadratroden af 2"},
                    Line{"- integralet af P", "minus integralet af P"}, Line{"- over 2", "- over 2"},
                    Line{"brøk slut -", "brøk slut minus"}, Line{"over -", "over -"},
                    Line{"brøk slut/3", "brøk slut divideret med 3"},
                    Line{"brøk slut, / 3", "brøk slut, divideret med 3"}, Line{"over / 3", "over / 3"},
                    Line{"over, / 3", "over, / 3"}, Line{", / 3", ", / 3"},
                    Line{"slut, / 3", "slut, divideret med 3"},
                    Line{"brøk: (-4)*6 over 2", "brøk: minus 4 gange 6 over 2"},
                    Line{"(brøk: 1 over 2, brøk slut,)²",
                         "parentes brøk: 1 over 2, brøk slut, parentes slut i anden"},
                    Line{"(brøk: 1 over 2, brøk slut,)·3", "brøk: 1 over 2, brøk slut, gange 3"},
                    Line{"(brøk: 1 over 2, brøk slut, ; 3)", "brøk: 1 over 2, brøk slut, semikolon 3"},
                    Line{"(brøk: 1 over 2, brøk slut, , 3)", "brøk: 1 over 2, brøk slut, komma 3"}));

INSTANTIATE_TEST_SUITE_P(BracketsInBrackets, Spoken,
                         testing::Values(Line{"((1;2)-3)·2",
                                              "parentes 1 semikolon 2 minus 3 parentes slut gange 2"},
                                         Line{"((1)-2;3)", "1 minus 2 semikolon 3"},
                                         Line{"(4,5)·2", "4,5 gange 2"}, Line{"(4.5, 3)", "4.5 komma 3"},
                                         Line{"(5, 3)", "5 komma 3"}, Line{"(1,;2)", "1 komma semikolon 2"}));

INSTANTIATE_TEST_SUITE_P(BracketsAlone, Spoken,
                         testing::Values(Line{"()", "()"}, Line{"(2", "parentes 2"},
                                         Line{"(2 +", "parentes 2 plus"}, Line{"2 + (", "2 plus"},
                                         Line{") + 2", "parentes slut plus 2"},
                                         Line{"2 )", "2 parentes slut"}, Line{"2+)", "2 plus parentes slut"},
                                         Line{"+A)", "plus A)"}, Line{"(grønt)", "(grønt)"},
                                         Line{"(grønt Q)", "(grønt Q)"}, Line{": (Q)", ": (Q)"},
                                         Line{"(3)²", "parentes 3 parentes slut i anden"},
                                         Line{"(3)a²", "3 a i anden"}, Line{"(a²)", "a i anden"}));

INSTANTIATE_TEST_SUITE_P(Functions, Spoken,
                         testing::Values(Line{"P(a+b)", "P af parentes a plus b parentes slut"},
                                         Line{"2·P(w)", "2 gange P af w"}, Line{"-P(w)", "minus P af w"},
                                         Line{"2P(w)", "2 P w"}, Line{"P1(w)", "P1 w"}, Line{"a(b)", "a b"},
                                         Line{"P (w)", "P w"},
                                         Line{"d(a+b)", "d parentes a plus b parentes slut"},
                                         Line{"P(-2)", "P af minus 2"}));

/// Texts that nobody would write, of all signs that are looked at.
QString randomText(std::mt19937& random) {
    static const QString letters = "QPabdinoxæ019,.;:()+-*/=<>²³ⁿ½√∫αω'·≤≠∞\"  \n\t";
    QString text;
    const auto length = random() % 60;
    for (unsigned i = 0; i < length; ++i) {
        text += letters[static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size()))];
    }
    return text;
}

TEST(SpokenText, IsBoundedAndWithoutSignsWhateverTheText) {
    std::mt19937 random(1);
    for (int i = 0; i < 20'000; ++i) {
        const QString text = randomText(random);
        const QString words = spoken(text);
        ASSERT_LE(words.size(), 40 * text.size()) << text.toStdString();
        ASSERT_EQ(words, words.simplified()) << text.toStdString();
        ASSERT_FALSE(words.contains('=')) << text.toStdString() << " -> " << words.toStdString();
        ASSERT_FALSE(words.contains(QRegularExpression("[²³√∫αω·+≤≠∞½]")))
            << text.toStdString() << " -> " << words.toStdString();
    }
}

TEST(SpokenText, LeavesProseWithItsHyphensAlone) {
    std::mt19937 random(2);
    const QStringList words{"pris", "P-værdi",         "Q-aksen",        "gennem-snit", "og/eller", "mængde,",
                            "Find", "TVC-funktionen.", "(se evt. side)", "priser-",     "\"OK\"",   "12"};
    for (int i = 0; i < 5'000; ++i) {
        QStringList sentence;
        for (unsigned word = 0; word < 8; ++word) {
            sentence += words[static_cast<qsizetype>(random() % static_cast<unsigned>(words.size()))];
        }
        const QString text = sentence.join(" ");
        ASSERT_EQ(spoken(text).toStdString(), text.toStdString());
    }
}

TEST(SpokenText, SaysItsOwnWordsAgainAsTheyAre) {
    for (const char* text : {"P = -4Q² + 8", "(2/3)·Q³", "0<Q≤6", "½", "P'(2)"}) {
        const QString words = spoken(text);
        EXPECT_EQ(spoken(words), words);
    }
}

}  // namespace
}  // namespace tavrune
