#include "topics/economics/afsaet_exercise.h"

#include <array>
#include <cfenv>
#include <cmath>
#include <optional>
#include <utility>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/lot.h"
#include "support/proof.h"
#include "topics/economics/afsaet_script.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::eachIs;
using test::lotSize;
using test::Proof;
using test::ProofDraws;
using test::readsAsItself;
using test::afsaet::exercise;
using test::afsaet::numbers;
using test::afsaet::Sample;
using test::afsaet::sample;
using test::afsaet::samples;

using Kind = AfsaetKind;

/// The numbers of an answer as they are typed.
std::vector<double> typed(const AfsaetAnswer& answer) { return {answer.a, answer.b, answer.Qlo, answer.Qhi}; }

const Judgement kAllRight = solvedIfAllRight({true, true, true, true});

/// All are right but that one.
Judgement allRightBut(std::size_t wrong) {
    std::vector<bool> isRight = kAllRight.isRight;
    isRight.at(wrong) = false;
    return solvedIfAllRight(isRight);
}

std::vector<std::string> stepTexts(const AfsaetState& state) {
    std::vector<std::string> texts;
    for (const AfsaetStep& step : workedSteps(state, helpFor(state))) {
        EXPECT_EQ(step.numerator.empty(), step.denominator.empty());
        if (!step.denominator.empty()) {
            texts.push_back(step.numerator);
            texts.push_back(step.denominator);
        }
        texts.push_back(step.text);
    }
    texts.push_back(equationText(state));
    return texts;
}

class AfsaetSamples : public testing::TestWithParam<Sample> {};

TEST_P(AfsaetSamples, ComeOfJustTheirDraws) {
    const Sample& row = GetParam();
    const AfsaetState s = test::exerciseOf<AfsaetState>(row.script(), test::Reseeds{1});
    EXPECT_EQ(s.kind, row.drawn.kind);
    EXPECT_EQ(answerOf(s), row.answer);
    const AfsaetTask task = taskTexts(s);
    EXPECT_EQ(task.firstFact, row.firstFact);
    EXPECT_EQ(task.secondFact, row.secondFact);
    EXPECT_EQ(task.range, row.range);
    EXPECT_EQ(judge(s, typed(row.answer)), kAllRight);
}

INSTANTIATE_TEST_SUITE_P(Rows, AfsaetSamples, testing::ValuesIn(samples()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(AfsaetJudge, WantsEachOfTheFourToTheLastDecimal) {
    const AfsaetState s = exercise("ElasticityAtOtherPriceInPrices");
    const std::vector<double> own{Val("-1.33"), Val("9.33"), Val(".25"), Val("4.00")};
    EXPECT_EQ(judge(s, own), kAllRight);
    for (std::size_t at = 0; at < own.size(); ++at) {
        for (const double nudge : {0.01, -0.01, 0.001, 1e-9}) {
            std::vector<double> nudged = own;
            nudged[at] += nudge;
            EXPECT_EQ(judge(s, nudged), allRightBut(at)) << own[at] << " by " << nudge;
        }
    }
}

TEST(AfsaetJudge, TakesNothingTypedForALowerBoundOfZero) {
    const AfsaetState s = exercise("TwoElasticitiesInPrices");
    EXPECT_TRUE(eachIs({true, true, true, true}, s, {{-2, 8, Val(""), 3.5}, {-2, 8, Val("-0"), 3.5}}));
    EXPECT_TRUE(eachIs({false, false, true, false}, s, {{0, 0, 0, 0}}));
}

struct SentenceRow {
    Kind kind;
    const char* sentence;
};

TEST(AfsaetTexts, AskByKind) {
    for (const auto& [kind, sentence] : {
             SentenceRow{Kind::TwoPoints,
                         "Bestem forskriften for den lineære afsætningsfunktion gennem følgende to punkter:"},
             SentenceRow{Kind::PointAndElasticityAtPrice,
                         "Du kender et punkt på en lineær afsætningsfunktion og priselasticiteten til en "
                         "bestemt pris på samme funktion. Bestem afsætningsfunktionens forskrift."},
             SentenceRow{Kind::PointAndElasticityAtQuantity,
                         "Du kender et punkt på en lineær afsætnigsfunktion og priselasticiteten ved en "
                         "bestemt mængde på samme funktion. Bestem afsætningsfunktionens forskrift."},
             SentenceRow{Kind::PointAndSlope,
                         "Du kender et punkt på en lineær afsætningsfunktion samt dens "
                         "hældningskoefficient. Bestem afsætningsfunktionens forskrift."},
             SentenceRow{Kind::TwoElasticities,
                         "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt pris "
                         "samt priselasticiteten ved en bestemt mængde. Bestem afsætningsfunktionens "
                         "forskrift."},
             SentenceRow{Kind::ElasticityAtPriceAndSlope,
                         "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt pris "
                         "og afsætningsfunktionens hældningskoefficient. Bestem afsætningsfunktionens "
                         "forskrift."},
             SentenceRow{Kind::ElasticityAtQuantityAndSlope,
                         "På en lineær afsætningsfunktion kender du priselasticiteten ved en bestemt "
                         "mængde samt afsætningsfuktionens hældningskoefficient. Bestem "
                         "afsætningsfunktionens forskrift."},
         }) {
        AfsaetState s;
        s.kind = kind;
        EXPECT_EQ(taskTexts(s).sentence, sentence);
    }
}

struct WorkedRow {
    const char* sample;
    AfsaetHelp help;
    std::vector<std::string> texts;
};

TEST(AfsaetWorked, IsWrittenStepByStep) {
    const DecimalMark danish(",");
    for (const auto& [name, help, texts] : {
             WorkedRow{"TwoPointsInPrices",
                       AfsaetHelp::TwoPoints,
                       {"8 - 2", "1 - 5", "= -1,5", "b = 8 - (-1,5)*1 = 9,5", "P = -1,5Q + 9,5"}},
             WorkedRow{"ElasticityAtPointPriceInPrices",
                       AfsaetHelp::ElasticityAtPointPrice,
                       {"3", "-2*1", "= 3/-2 = -1,5", "b = 3 - (3/-2)*1 = 4,5", "P = -1,5Q + 4,5"}},
             WorkedRow{"ElasticityAtPointPriceInQuantities",
                       AfsaetHelp::ElasticityAtPointPrice,
                       {"6", "-3*2", "= 6/-6 = -1", "b = 6 - (6/-6)*2 = 8", "P = -1Q + 8"}},
             WorkedRow{"ElasticityAtOtherPriceInPrices",
                       AfsaetHelp::ElasticityAtOtherPrice,
                       {"8 - 7", "1 - 1,75", "= 1/-0,75 = -1,33", "b = 8 - (1/-0,75)*1 = 9,33",
                        "P = -1,33Q + 9,33"}},
             WorkedRow{"ElasticityAtPointQuantity",
                       AfsaetHelp::ElasticityAtPointQuantity,
                       {"7", "-3*1", "= 7/-3 = -2,33", "b = 7 - (7/-3)*1 = 9,33", "P = -2,33Q + 9,33"}},
             WorkedRow{
                 "ElasticityAtOtherQuantity",
                 AfsaetHelp::ElasticityAtOtherQuantity,
                 {"6 - 4,8", "1 - 2", "= 1,2/-1 = -1,2", "b = 6 - (1,2/-1)*1 = 7,2", "P = -1,2Q + 7,2"}},
             WorkedRow{
                 "PointAndSlopeInPrices", AfsaetHelp::PointAndSlope, {"b = 4 - (-3)*2 = 10", "P = -3Q + 10"}},
             WorkedRow{
                 "TwoElasticitiesInPrices",
                 AfsaetHelp::TwoElasticities,
                 {"Pmax = 6 - 6/-3 = -24/-3 = 8", "Qmax = 1 - 1*-3 = 4", "a = -8/4 = -2", "P = -2Q + 8"}},
             WorkedRow{"TwoElasticitiesOfALongPmax",
                       AfsaetHelp::TwoElasticities,
                       {"Pmax = 7 - 7/-3 = -28/-3 = 9,33", "Qmax = 2 - 2*-6 = 14", "a = -(-28/-3)/14 = -0,67",
                        "P = -0,67Q + 9,33"}},
             WorkedRow{"ElasticityAtPriceAndSlopeInPrices",
                       AfsaetHelp::ElasticityAtPriceAndSlope,
                       {"Q = 6/(-3*-2) = 1", "b = 6 - (-2*1) = 8", "P = -2Q + 8"}},
             WorkedRow{"ElasticityAtPriceAndSlopeUpsideDown",
                       AfsaetHelp::ElasticityAtPriceAndSlope,
                       {"Q = 3/(-2*-6) = 0,25", "b = 3 - (-6*0,25) = 4,5", "P = -6Q + 4,5"}},
             WorkedRow{"ElasticityAtPriceAndSlopeOfALongQ",
                       AfsaetHelp::ElasticityAtPriceAndSlope,
                       {"Q = 7/(-4*-4) = 7/16 = 0,44", "b = 7 - (-4*(7/16)) = 8,75", "P = -4Q + 8,75"}},
             WorkedRow{"ElasticityAtQuantityAndSlopeInPrices",
                       AfsaetHelp::ElasticityAtQuantityAndSlope,
                       {"P = -2*(-3)*1 = 6", "b = 6 - (-2)*1 = 8", "P = -2Q + 8"}},
         }) {
        const AfsaetState s = exercise(name);
        EXPECT_EQ(helpFor(s), help) << name;
        EXPECT_EQ(stepTexts(s), texts) << name;
    }
}

TEST(AfsaetWorked, IsFoundByWhatAStepFinds) {
    const AfsaetState s = exercise("TwoElasticitiesInPrices");
    EXPECT_EQ(workedStep(s, AfsaetHelp::TwoElasticities, AfsaetUnknown::MaxPrice).text,
              "Pmax = 6 - 6/-3 = -24/-3 = 8");
    EXPECT_EQ(workedStep(s, AfsaetHelp::TwoElasticities, AfsaetUnknown::Slope).text, "a = -8/4 = -2");
    EXPECT_EQ(workedStep(s, AfsaetHelp::TwoElasticities, AfsaetUnknown::Quantity).text, "");
}

/// What the student is told, read back from the texts: enough to fix a line, two facts of any kind.
struct Facts {
    std::vector<std::pair<double, double>> points;  // P; Q
    std::optional<double> slope;
    std::optional<double> b;     // from an elasticity at a price: Ep = P/(P - b)
    std::optional<double> Qmax;  // from an elasticity at a quantity: Ep = (Q - Qmax)/Q
};

void read(const std::string& fact, Facts& facts) {
    const auto valueFrom = [&fact](std::size_t at) { return Val(fact.substr(at)); };
    const std::size_t equals = fact.find('=');
    if (fact.front() == '(') {
        const std::size_t open = fact.find('(', equals);
        facts.points.emplace_back(valueFrom(open + 1), valueFrom(fact.find(';', open) + 1));
    } else if (fact.front() == 'H') {
        facts.slope = valueFrom(equals + 1);
    } else {
        const double Ep = valueFrom(equals + 1);
        const double at = valueFrom(fact.rfind('=') + 1);
        if (fact.find('P', equals) != std::string::npos) {
            facts.b = at - at / Ep;
        } else {
            facts.Qmax = at * (1 - Ep);
        }
    }
}

/// Slope and intercept of the one line that the facts allow.
std::pair<double, double> solve(const Facts& facts) {
    if (facts.b && facts.Qmax) {
        return {-*facts.b / *facts.Qmax, *facts.b};
    }
    if (facts.slope && facts.b) {
        return {*facts.slope, *facts.b};
    }
    if (facts.slope && facts.Qmax) {
        return {*facts.slope, -*facts.slope * *facts.Qmax};
    }
    const auto [P, Q] = facts.points.at(0);
    if (facts.slope) {
        return {*facts.slope, P - *facts.slope * Q};
    }
    if (facts.b) {
        return {(P - *facts.b) / Q, *facts.b};
    }
    if (facts.Qmax) {
        const double a = P / (Q - *facts.Qmax);
        return {a, -a * *facts.Qmax};
    }
    const auto [P2, Q2] = facts.points.at(1);
    const double a = (P2 - P) / (Q2 - Q);
    return {a, P - a * Q};
}

/// The four numbers that the task determines, unrounded.
AfsaetAnswer solved(const AfsaetTask& task) {
    Facts facts;
    read(task.firstFact, facts);
    read(task.secondFact, facts);
    const auto [a, b] = solve(facts);
    const std::size_t mark = task.range.find('<');
    const double lower = Val(task.range.substr(task.range.rfind(' ', mark) + 1));
    const double upper = Val(task.range.substr(mark + 3));
    return task.range.at(mark + 1) == 'P' ? AfsaetAnswer{a, b, (upper - b) / a, (lower - b) / a}
                                          : AfsaetAnswer{a, b, lower, upper};
}

TEST(AfsaetReader, SolvesTheTextsOfEverySample) {
    for (const Sample& row : samples()) {
        const std::vector<double> found = typed(solved({"", row.firstFact, row.secondFact, row.range}));
        for (std::size_t at = 0; at < found.size(); ++at) {
            EXPECT_NEAR(found[at], typed(row.answer)[at], 0.00501) << row.name;
        }
    }
}

bool isWhole(double x) { return x == std::floor(x); }

bool hasTwoDecimals(double x) { return x == std::round(x * 100) / 100; }

/// What must hold of an exercise, whatever was drawn; the first thing that does not, or nothing.
const char* flawOf(const AfsaetState& s) {
    const std::vector<double> answer = typed(answerOf(s));
    const std::vector<double> told = typed(solved(taskTexts(s)));
    // What single precision makes of a bound where the line is flattest is less than this.
    constexpr double kSlack = 1e-4;
    for (std::size_t at = 0; at < answer.size(); ++at) {
        if (!std::isfinite(answer[at]) || std::abs(answer[at] - told[at]) > 0.005 + kSlack) {
            return "the texts do not determine the answer";
        }
        if (!hasTwoDecimals(answer[at])) {
            return "the answer is not rounded";
        }
    }
    if (!(s.a < 0 && 3 <= s.b && s.b <= 10)) {
        return "the line is not one to ask for";
    }
    const bool isInPrices = s.interval == AfsaetInterval::InPrices;
    if (isInPrices ? !isWhole(s.Plo) || !isWhole(s.Phi) : !isWhole(s.Qlo) || !isWhole(s.Qhi)) {
        return "a bound is not whole";
    }
    const bool isRepaired = s.kind == Kind::TwoPoints || s.kind == Kind::PointAndElasticityAtPrice;
    if (isRepaired && isInPrices && (s.Qlo < 0 || s.Qhi > 10 || s.Phi < s.P1 || s.Plo > s.P2)) {
        return "the bounds leave the graph, or do not hold the points";
    }
    if (s.kind == Kind::TwoPoints && !isInPrices && s.Qhi != s.Q2 + 1) {
        return "the upper bound is not one above the second point";
    }
    for (const float drawn : {s.Ep, s.Ep2, s.slope}) {
        // -1 comes of a draw of just 0, which a long run can meet.
        if (drawn < -6 || drawn > -1 || !isWhole(drawn)) {
            return "an elasticity or slope is out of its range";
        }
    }
    if (judge(s, answer) != kAllRight) {
        return "the answer is judged wrong";
    }
    for (std::size_t at = 0; at < answer.size(); ++at) {
        if (!readsAsItself(answer[at])) {
            return "the answer does not read as itself";
        }
        for (const double beside : {-0.001, 0.001}) {
            std::vector<double> nudged = answer;
            nudged[at] += beside;
            if (judge(s, nudged) != allRightBut(at)) {
                return "another number is judged right, or not it alone wrong";
            }
        }
    }
    const AfsaetHelp help = helpFor(s);
    const double last = help == AfsaetHelp::TwoElasticities ? s.a : s.b;
    if (equationText(s) != "P = " + NumberText(s.a) + "Q + " + NumberText(s.b) ||
        !test::endsIn(workedSteps(s, help).back().text, "= " + NumberText(last))) {
        return "the worked solution does not end in the answer";
    }
    return nullptr;
}

TEST(AfsaetProperties, HoldOverManyExercises) {
    // Each of the nine helps both ways, but for an elasticity at a quantity beside a point.
    Proof proof("afsæt", 16);
    AfsaetState s;
    std::feclearexcept(FE_ALL_EXCEPT);
    for (const auto ends : {ProofDraws::Ends::None, ProofDraws::Ends::AboveZero}) {
        ProofDraws draws(61, ends);
        for (int i = 0; i < lotSize(ends == ProofDraws::Ends::None ? 100'000 : 20'000); ++i) {
            draws.beginExercise();
            newExercise(s, draws);
            proof.visit(Proof::From::Seeds, 2 * static_cast<int>(helpFor(s)) + static_cast<int>(s.interval));
            const char* const flaw = flawOf(s);
            ASSERT_EQ(flaw, nullptr) << flaw << ": " << taskTexts(s).firstFact << " "
                                     << taskTexts(s).secondFact << " " << taskTexts(s).range;
        }
    }
    EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID), 0) << "also in what was rejected";
}

TEST(AfsaetProperties, HaveNoLongNumberInAnyWorkedStep) {
    // 1/-0.75 and the like could come with fifteen digits.
    SeededDraws draws(62);
    AfsaetState s;
    for (int i = 0; i < 20'000; ++i) {
        newExercise(s, draws);
        for (const std::string& text : stepTexts(s)) {
            ASSERT_LE(text.size(), 36U) << text;
        }
    }
}

TEST(AfsaetProperties, TellAnAnswerThatIsTypedAsItIsShown) {
    SeededDraws draws(63);
    AfsaetState s;
    for (int i = 0; i < 20'000; ++i) {
        newExercise(s, draws);
        std::vector<double> answer = typed(answerOf(s));
        for (double& number : answer) {
            number = Val(NumberText(number));
        }
        ASSERT_EQ(judge(s, answer), kAllRight);
    }
}

RC_GTEST_PROP(AfsaetGeneratorProperty, GivesASolvableExerciseForEverySeed, (std::uint64_t seed)) {
    SeededDraws draws(seed);
    AfsaetState s;
    for (int i = 0; i < 20; ++i) {
        newExercise(s, draws);
        RC_ASSERT(flawOf(s) == nullptr);
    }
}

}  // namespace
}  // namespace tavrune
