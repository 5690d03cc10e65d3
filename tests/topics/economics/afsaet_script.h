#pragma once

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/scripted_draws.h"
#include "topics/economics/afsaet_exercise.h"

/// The draws that give an exercise on a demand function.
namespace tavrune::test::afsaet {

/// What every kind draws, as it falls: the quantities and prices may still change places.
struct Numbers {
    AfsaetKind kind = AfsaetKind::TwoPoints;
    int P1 = 8;
    int P2 = 2;
    int Q1 = 1;
    int Q2 = 5;
    int Ep = -2;
    int Ep2 = -2;
    int slope = -2;
};

/// A draw that falls into cell `cell` once it is multiplied by `factor`, at that part of the cell.
[[nodiscard]] constexpr float drawIn(int cell, double factor, double within) {
    return std::min(static_cast<float>((cell + within) / factor), kLargestDraw);
}

/// -6 to -1.
[[nodiscard]] constexpr float negative(int value, double within) {
    return value == -1 ? 0 : drawIn(-value - 2, 5, within);
}

/// Each draw at that part of those that give the same number.
[[nodiscard]] inline Script numbers(const Numbers& n, double within = 0.5) {
    return {drawIn(static_cast<int>(n.kind), 7, within),
            drawIn(n.P1, 10, within),
            drawIn(n.P2, 10, within),
            drawIn(n.Q1, 10, within),
            drawIn(n.Q2, 10, within),
            negative(n.Ep, within),
            negative(n.Ep2, within),
            negative(n.slope, within)};
}

/// The coin.
inline constexpr float kPrices = 0.75F;
inline constexpr float kQuantities = 0.25F;

/// An exercise whole, with all its draws.
struct Sample {
    const char* name;
    Numbers drawn;
    /// The coin and the draws of the bounds.
    Script rest;
    AfsaetAnswer answer;
    const char* firstFact;
    const char* secondFact;
    const char* range;

    [[nodiscard]] Script script() const { return numbers(drawn) + rest; }
};

inline void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.name; }

/// Every kind with every way to tell its interval.
[[nodiscard]] inline const std::vector<Sample>& samples() {
    using Kind = AfsaetKind;
    static const std::vector<Sample> all{
        {"TwoPointsInPrices",
         {Kind::TwoPoints, 8, 2, 1, 5},
         {kPrices, cellOf(1, 2), cellOf(1, 2)},
         {-1.5, 9.5, 0.33, 5.67},
         "(P1; Q1) = (8;1)",
         "(P2; Q2) = (2;5)",
         "Funktionen gælder i intervallet 1<P<9"},
        {"TwoPointsInQuantities",
         {Kind::TwoPoints, 6, 3, 3, 6},
         {kQuantities, cellOf(2, 3), kLargestDraw},
         {-1, 9, 1, 7},
         "(P1; Q1) = (6;3)",
         "(P2; Q2) = (3;6)",
         "Funktionen gælder i intervallet 1<Q<7"},
        {"ElasticityAtPointPriceInPrices",
         {Kind::PointAndElasticityAtPrice, 3, 3, 1, 7, -2},
         {kPrices, 0.5F, cellOf(0, 8)},
         {-1.5, 4.5, 0.33, 2.33},
         "(P1; Q1) = (3;1) ",
         "Ep. = -2   P2 = 3",
         "Funktionen gælder i intervallet 1<P<4"},
        {"ElasticityAtPointPriceInQuantities",
         {Kind::PointAndElasticityAtPrice, 6, 6, 2, 7, -3},
         {kQuantities, 0.5F},
         {-1, 8, 1, 5},
         "(P1; Q1) = (6;2) ",
         "Ep. = -3   P2 = 6",
         "Funktionen gælder i intervallet 1<Q<5"},
        {"ElasticityAtOtherPriceInPrices",
         {Kind::PointAndElasticityAtPrice, 8, 7, 1, 9, -3},
         {kPrices, cellOf(1, 2)},
         {-1.33, 9.33, 0.25, 4},
         "(P1; Q1) = (8;1) ",
         "Ep. = -3   P2 = 7",
         "Funktionen gælder i intervallet 4<P<9"},
        {"ElasticityAtOtherPriceInQuantities",
         {Kind::PointAndElasticityAtPrice, 8, 7, 1, 9, -3},
         {kQuantities, 0.5F},
         {-1.33, 9.33, 1, 3},
         "(P1; Q1) = (8;1) ",
         "Ep. = -3   P2 = 7",
         "Funktionen gælder i intervallet 1<Q<3"},
        {"ElasticityAtPointQuantity",
         {Kind::PointAndElasticityAtQuantity, 7, 4, 1, 1, -3},
         {},
         {-2.33, 9.33, 1, 2},
         "(P1; Q1) = (7;1) ",
         "Ep = -3   Q2 = 1",
         "Denne funktion er gyldig i intervallet 1<Q<2"},
        {"ElasticityAtOtherQuantity",
         {Kind::PointAndElasticityAtQuantity, 6, 1, 1, 2, -2},
         {},
         {-1.2, 7.2, 1, 4},
         "(P1; Q1) = (6;1) ",
         "Ep = -2   Q2 = 2",
         "Denne funktion er gyldig i intervallet 1<Q<4"},
        {"PointAndSlopeInPrices",
         {Kind::PointAndSlope, 4, 1, 2, 5, -2, -2, -3},
         {kPrices, cellOf(1, 2)},
         {-3, 10, 1, 3},
         "(P; Q) = (4;2) ",
         "Hældningskoefficienten(a) = -3",
         "I intervallet 1<P<7 er funktionen retlinet."},
        {"PointAndSlopeInQuantities",
         {Kind::PointAndSlope, 4, 1, 2, 5, -2, -2, -3},
         {kQuantities},
         {-3, 10, 1, 3},
         "(P; Q) = (4;2) ",
         "Hældningskoefficienten(a) = -3",
         "I intervallet 1<Q<3 er funktionen retlinet."},
        {"PointAndSlopeWithEqualBounds",
         {Kind::PointAndSlope, 2, 1, 1, 5, -3, -2, -3},
         {kQuantities},
         {-3, 5, 0, 1},
         "(P; Q) = (2;1) ",
         "Hældningskoefficienten(a) = -3",
         "I intervallet 0<Q<1 er funktionen retlinet."},
        {"TwoElasticitiesInPrices",
         {Kind::TwoElasticities, 6, 1, 1, 5, -3, -3},
         {kPrices},
         {-2, 8, 0, 3.5},
         "Ep. =  -3   P = 6",
         "Ep. =  -3   Q = 1",
         "Funktionen gælder i intervallet 1<P<8"},
        {"TwoElasticitiesInQuantities",
         {Kind::TwoElasticities, 6, 1, 1, 5, -3, -3},
         {kQuantities, 0.5F},
         {-2, 8, 0, 3},
         "Ep. =  -3   P = 6",
         "Ep. =  -3   Q = 1",
         "Funktionen gælder i intervallet 0<Q<3"},
        {"TwoElasticitiesTooFlatForPrices",
         {Kind::TwoElasticities, 6, 1, 8, 9, -6, -6},
         {kPrices, 0.5F},
         {-0.13, 7, 3, 9},
         "Ep. =  -6   P = 6",
         "Ep. =  -6   Q = 8",
         "Funktionen gælder i intervallet 3<Q<9"},
        {"TwoElasticitiesOfALongPmax",
         {Kind::TwoElasticities, 7, 1, 2, 5, -3, -6},
         {kQuantities, 0.5F},
         {-0.67, 9.33, 0, 8},
         "Ep. =  -3   P = 7",
         "Ep. =  -6   Q = 2",
         "Funktionen gælder i intervallet 0<Q<8"},
        {"ElasticityAtPriceAndSlopeInPrices",
         {Kind::ElasticityAtPriceAndSlope, 6, 1, 4, 5, -3, -2, -2},
         {kPrices},
         {-2, 8, 0.5, 2.5},
         "Ep. = -3   P = 6",
         "Hældningskoefficienten(a) = -2",
         "Funktionen gælder i intervallet 3<P<7"},
        {"ElasticityAtPriceAndSlopeFromZero",
         {Kind::ElasticityAtPriceAndSlope, 6, 1, 4, 5, -3, -2, -2},
         {kQuantities, 0.25F},
         {-2, 8, 0, 4},
         "Ep. = -3   P = 6",
         "Hældningskoefficienten(a) = -2",
         "Funktionen gælder i intervallet 0<Q<4"},
        {"ElasticityAtPriceAndSlopeFromOne",
         {Kind::ElasticityAtPriceAndSlope, 6, 1, 4, 5, -3, -2, -2},
         {kQuantities, 0.5F},
         {-2, 8, 1, 4},
         "Ep. = -3   P = 6",
         "Hældningskoefficienten(a) = -2",
         "Funktionen gælder i intervallet 1<Q<4"},
        {"ElasticityAtPriceAndSlopeWithEqualBounds",
         {Kind::ElasticityAtPriceAndSlope, 6, 1, 4, 5, -3, -2, -6},
         {kQuantities, 0.5F},
         {-6, 8, 0, 1},
         "Ep. = -3   P = 6",
         "Hældningskoefficienten(a) = -6",
         "Funktionen gælder i intervallet 0<Q<1"},
        {"ElasticityAtPriceAndSlopeUpsideDown",
         {Kind::ElasticityAtPriceAndSlope, 3, 1, 4, 5, -2, -2, -6},
         {kQuantities, 0.5F},
         {-6, 4.5, 1, 0},
         "Ep. = -2   P = 3",
         "Hældningskoefficienten(a) = -6",
         "Funktionen gælder i intervallet 1<Q<0"},
        {"ElasticityAtPriceAndSlopeOfALongQ",
         {Kind::ElasticityAtPriceAndSlope, 7, 1, 4, 5, -4, -2, -4},
         {kPrices},
         {-4, 8.75, 0.19, 1.19},
         "Ep. = -4   P = 7",
         "Hældningskoefficienten(a) = -4",
         "Funktionen gælder i intervallet 4<P<8"},
        {"ElasticityAtQuantityAndSlopeInPrices",
         {Kind::ElasticityAtQuantityAndSlope, 4, 1, 1, 5, -3, -2, -2},
         {kPrices},
         {-2, 8, 0.5, 2.5},
         "Ep. = -3    Q = 1",
         "Hældningskoefficienten(a) = -2",
         "Funktionen gælder i intervallet 3<P<7"},
        {"ElasticityAtQuantityAndSlopeInQuantities",
         {Kind::ElasticityAtQuantityAndSlope, 4, 1, 1, 5, -3, -2, -2},
         {kQuantities, 0.5F},
         {-2, 8, 1, 4},
         "Ep. = -3    Q = 1",
         "Hældningskoefficienten(a) = -2",
         "Funktionen gælder i intervallet 1<Q<4"},
    };
    return all;
}

/// The first sample of that name.
[[nodiscard]] inline const Sample& sample(std::string_view name) {
    for (const Sample& candidate : samples()) {
        if (candidate.name == name) {
            return candidate;
        }
    }
    throw std::invalid_argument("there is no such sample");
}

/// The exercise that comes of just these draws.
[[nodiscard]] inline AfsaetState exercise(const Script& script) { return exerciseOf<AfsaetState>(script); }

[[nodiscard]] inline AfsaetState exercise(const char* name) { return exercise(sample(name).script()); }

}  // namespace tavrune::test::afsaet
