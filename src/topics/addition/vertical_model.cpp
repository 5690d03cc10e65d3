#include "topics/addition/vertical_model.h"

#include "numeric/arithmetic.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

/// "(4 - 2)"
std::string pairText(double one, double other) {
    return "(" + NumberText(one) + " " + signOf(other) + " " + sizeText(other) + ")";
}

}  // namespace

double drawSlope(Draws& draws, bool isFalling) {
    return isFalling ? Fix(draws.Rnd() * -5) : Int(draws.Rnd() * 5);
}

Piece drawPieceFromAxis(Draws& draws, float fallingShare) {
    const double slope = drawSlope(draws, draws.Rnd() < fallingShare);
    return {slope, Int(draws.Rnd() * 5)};
}

double zeroOf(const Piece& piece) { return divide(-piece.intercept, piece.slope); }

Piece addedUp(const Piece& one, const Piece& other) {
    return {one.slope + other.slope, one.intercept + other.intercept};
}

std::vector<AnswerField> answerFields(const VerticalSum& sum) {
    std::vector<AnswerField> fields;
    for (std::size_t segment = 0; segment < sum.segments.size(); ++segment) {
        const int row = sum.rowOfSegment(segment);
        fields.push_back({row, Slot::Slope, {sum.segments[segment].slope, Rule::Exactly}});
        fields.push_back({row, Slot::Intercept, {sum.segments[segment].intercept, Rule::Exactly}});
        if (segment > 0) {
            fields.push_back({row, Slot::Start, {sum.breaks[segment - 1], Rule::Chained}});
        } else if (segment == sum.last()) {
            fields.push_back({row, Slot::Start, {0, Rule::Exactly}});
        }
        if (segment != sum.last()) {
            fields.push_back({row, Slot::End, {sum.breaks[segment], Rule::Chained}});
        } else if (sum.upperEndAsked) {
            fields.push_back({row, Slot::End, {sum.upperEnd, Rule::NearClosed}});
        }
    }
    return fields;
}

std::string termsText(const Piece& piece) {
    return NumberText(piece.slope) + "Q + " + NumberText(piece.intercept);
}

std::string workedSumText(const Piece& one, const Piece& other) {
    return pairText(one.slope, other.slope) + "Q + " + pairText(one.intercept, other.intercept) + " = " +
           termsText(addedUp(one, other));
}

std::string rangeText(const VerticalSum& sum, std::size_t segment, const std::string& quantity) {
    const auto shown = [](double q) { return NumberText(RoundUp2(q)); };
    const std::string from = segment == 0 ? "0" : shown(sum.breaks[segment - 1]);
    std::string upTo;
    if (segment != sum.last()) {
        upTo = "<" + shown(sum.breaks[segment]);
    } else if (sum.upperEndAsked) {
        upTo = "<" + shown(sum.upperEnd);
    }
    return from + "<" + quantity + upTo;
}

}  // namespace tavrune
