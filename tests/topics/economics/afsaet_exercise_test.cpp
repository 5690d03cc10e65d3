#include "topics/economics/afsaet_exercise.h"

#include <array>
#include <cfenv>
#include <cmath>
#include <ostream>
#include <utility>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "numeric/text.h"
#include "support/decimal_mark.h"
#include "support/judged.h"
#include "support/lot.h"
#include "support/proof.h"
#include "topics/economics/afsaet_reader.h"
#include "topics/economics/afsaet_script.h"
#include "topics/economics/afsaet_space.h"

namespace tavrune {
namespace {

using test::DecimalMark;
using test::eachIs;
using test::lotSize;
using test::Proof;
using test::ProofDraws;
using test::readsAsItself;
using test::afsaet::exercise;
using test::afsaet::factsOf;
using test::afsaet::Fate;
using test::afsaet::forEachTry;
using test::afsaet::numbers;
using test::afsaet::Sample;
using test::afsaet::sample;
using test::afsaet::samples;
using test::afsaet::sidesOf;
using test::afsaet::solved;
using test::afsaet::Try;
using test::afsaet::TryDraws;

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

/// What a worked step begins with, and the number that it is to find on the line P = aQ + b.
std::pair<std::string, double> wantedOf(const AfsaetStep& step, const AfsaetState& s, double a, double b) {
    switch (step.unknown) {
        case AfsaetUnknown::Slope:
            return {step.denominator.empty() ? "a = " : "= ", a};
        case AfsaetUnknown::Intercept:
            return {"b = ", b};
        case AfsaetUnknown::MaxPrice:
            return {"Pmax = ", b};
        case AfsaetUnknown::MaxQuantity:
            return {"Qmax = ", -b / a};
        case AfsaetUnknown::Quantity:
            return {"Q = ", (s.P1 - b) / a};
        case AfsaetUnknown::Price:
            return {"P = ", a * s.Q1 + b};
    }
    return {};
}

/// What does not hold of the worked solution of the line P = aQ + b.
const char* workedFlawOf(const AfsaetState& s, double a, double b) {
    const AfsaetHelp help = helpFor(s);
    // Rounded slopes and coordinates go into the steps of these three, and make at most so much of them.
    const bool isOfRounded = help == AfsaetHelp::TwoPoints || help == AfsaetHelp::ElasticityAtOtherPrice ||
                             help == AfsaetHelp::ElasticityAtOtherQuantity;
    const double slack = isOfRounded ? 0.0304 : 1e-9;
    const std::vector<AfsaetStep> steps = workedSteps(s, help);
    for (const AfsaetStep& step : steps) {
        const auto& [beginning, wanted] = wantedOf(step, s, a, b);
        std::vector<double> sides = sidesOf(step);
        const double rounded = sides.back();
        sides.pop_back();
        for (const double side : sides) {
            if (std::abs(side - wanted) > slack) {
                return "a side of a worked step is another number";
            }
        }
        if (sides.empty() || step.text.rfind(beginning, 0) != 0 || std::abs(rounded - wanted) > 0.00501 ||
            !hasTwoDecimals(rounded)) {
            return "a worked step does not come to what it is to find";
        }
    }
    const bool isByMaxPrice = help == AfsaetHelp::TwoElasticities;
    if (isByMaxPrice || help == AfsaetHelp::ElasticityAtPriceAndSlope) {
        const double between = isByMaxPrice ? b : (s.P1 - b) / a;
        const bool isFraction = steps.back().text.find(isByMaxPrice ? ")/" : "))") != std::string::npos;
        const bool isHeld = std::abs(between - std::round(between * 100) / 100) < 1e-9;
        const bool isShownAsSuch = isByMaxPrice || sidesOf(steps.front()).size() == (isFraction ? 3 : 2);
        if (isFraction == isHeld || !isShownAsSuch) {
            return "a number between is a fraction although 2 decimals hold it, or is cut";
        }
    }
    const double last = isByMaxPrice ? s.a : s.b;
    if (equationText(s) != "P = " + NumberText(s.a) + "Q + " + NumberText(s.b) ||
        !test::endsIn(steps.back().text, "= " + NumberText(last))) {
        return "the worked solution does not end in the answer";
    }
    return nullptr;
}

int kindOf(const AfsaetState& s) { return 2 * static_cast<int>(helpFor(s)) + static_cast<int>(s.interval); }

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
    return workedFlawOf(s, told[0], told[1]);
}

/// How many tries are drawn again, how many are exercises, and how many of both go otherwise than exact
/// numbers say, since singles fall to the other side of an edge.
struct Counts {
    int left = 0;
    int taken = 0;
    int bySingles = 0;

    bool operator==(const Counts&) const = default;
};

void PrintTo(const Counts& counts, std::ostream* out) {
    *out << "{" << counts.left << ", " << counts.taken << ", " << counts.bySingles << "}";
}

bool isToldAs(const Fate& fate, const AfsaetState& s) {
    const bool isInPrices = s.interval == AfsaetInterval::InPrices;
    return s.interval == fate.interval && (isInPrices ? s.Plo : s.Qlo) == fate.lower &&
           (isInPrices ? s.Phi : s.Qhi) == fate.upper;
}

void proveTry(const Try& t, Proof& proof, Counts& counts) {
    static const Sample& next = sample("ElasticityAtPointQuantity");
    TryDraws draws(t.script(), next.script());
    AfsaetState s;
    newExercise(s, draws);
    const Fate fate = t.fate();
    const bool isAsExpected =
        draws.isUsedUp() && draws.isTaken() == fate.isTaken && (!fate.isTaken || isToldAs(fate, s));
    ASSERT_TRUE(isAsExpected || fate.isOnEdge) << testing::PrintToString(t);
    counts.bySingles += isAsExpected ? 0 : 1;
    if (!draws.isTaken()) {
        ++counts.left;
        ASSERT_EQ(answerOf(s), next.answer) << testing::PrintToString(t);
        return;
    }
    ++counts.taken;
    proof.visit(Proof::From::WholeSpace, kindOf(s));
    ASSERT_EQ(factsOf(taskTexts(s)), t.facts()) << testing::PrintToString(t);
    const char* const flaw = flawOf(s);
    ASSERT_EQ(flaw, nullptr) << flaw << ": " << testing::PrintToString(t);
}

struct SpaceRow {
    Kind kind;
    Counts all;
    Counts ofSome;
};

// 5,696,714 tries, or those of every 67th set of numbers.
void proveSpace(Proof& proof) {
    constexpr int kStride = 67;
    const int stride = lotSize(kStride, 1);
    for (const auto& [kind, all, ofSome] : {
             SpaceRow{Kind::TwoPoints, {219'260, 261'188, 0}, {3'252, 4'031, 0}},
             SpaceRow{Kind::PointAndElasticityAtPrice, {76'501, 28'526, 212}, {1'097, 441, 2}},
             SpaceRow{Kind::PointAndElasticityAtQuantity, {56'954, 3'046, 534}, {851, 45, 9}},
             SpaceRow{Kind::PointAndSlope, {1'119'422, 287'098, 0}, {16'791, 4'209, 0}},
             SpaceRow{Kind::TwoElasticities, {918'354, 775'165, 5'599}, {13'537, 11'775, 95}},
             SpaceRow{Kind::ElasticityAtPriceAndSlope, {453'150, 522'450, 0}, {6'685, 7'899, 0}},
             SpaceRow{Kind::ElasticityAtQuantityAndSlope, {846'711, 128'889, 0}, {12'703, 1'881, 0}},
         }) {
        Counts counts;
        forEachTry(kind, stride, [&proof, &counts](const Try& t) {
            if (!testing::Test::HasFatalFailure()) {
                proveTry(t, proof, counts);
            }
        });
        EXPECT_EQ(counts, stride == kStride ? ofSome : all) << "kind " << static_cast<int>(kind);
    }
}

void proveSeeded(Proof& proof) {
    AfsaetState s;
    for (const auto ends : {ProofDraws::Ends::None, ProofDraws::Ends::AboveZero}) {
        ProofDraws draws(61, ends);
        for (int i = 0; i < lotSize(ends == ProofDraws::Ends::None ? 100'000 : 20'000); ++i) {
            draws.beginExercise();
            newExercise(s, draws);
            proof.visit(Proof::From::Seeds, kindOf(s));
            const char* const flaw = flawOf(s);
            ASSERT_EQ(flaw, nullptr) << flaw << ": " << taskTexts(s).firstFact << " "
                                     << taskTexts(s).secondFact << " " << taskTexts(s).range;
        }
    }
}

TEST(AfsaetProperties, HoldOfEveryExerciseThatCanBeDrawn) {
    // Each of the nine helps both ways, but for an elasticity at a quantity beside a point.
    Proof proof("afsæt", 16);
    std::feclearexcept(FE_ALL_EXCEPT);
    proveSpace(proof);
    proveSeeded(proof);
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
