#include "topics/addition/addition_model.h"

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/rounding.h"
#include "numeric/text.h"

namespace tavrune {
namespace {

constexpr std::size_t kSegmentsInALine = 2;

}  // namespace

double TableCell::number() const {
    if (!isNumeric()) {
        throw ArithmeticFailure(ArithmeticFailure::Kind::TypeMismatch);
    }
    return isEmpty() ? 0 : std::get<double>(content_);
}

std::string TableCell::text() const {
    if (isEmpty()) {
        return "";
    }
    if (isBlank()) {
        return " ";
    }
    return isUnbounded() ? "oo" : NumberText(number());
}

TableCell rounded(const TableCell& cell, double (*rule)(double)) {
    return cell.isNumeric() && !cell.isEmpty() ? TableCell(rule(cell.number())) : cell;
}

std::string stretchText(const TableCell& fromQ, const TableCell& fromP, const TableCell& toQ,
                        const TableCell& toP) {
    return "( " + fromQ.text() + " ; " + fromP.text() + " ) til ( " + toQ.text() + " ; " + toP.text() + " )";
}

std::array<std::string, 2> pathTexts(const std::vector<std::string>& stretches) {
    std::array<std::string, 2> lines{"Her fra ", ""};
    const std::size_t count = stretches.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::string end = i + 1 == count ? "." : (i + 2 == count ? " og fra " : ", fra ");
        lines.at(i / kSegmentsInALine) += stretches[i] + end;
    }
    return lines;
}

std::array<std::string, 2> pathTexts(std::span<const TableCell> quantities, std::span<const TableCell> prices,
                                     int segmentCount) {
    std::vector<std::string> stretches;
    for (std::size_t row = 0; row < static_cast<std::size_t>(segmentCount); ++row) {
        stretches.push_back(stretchText(quantities[row], prices[row], quantities[row + 1], prices[row + 1]));
    }
    return pathTexts(stretches);
}

Piece rounded(const Piece& piece) { return {RoundSigned2Fine(piece.slope), RoundUp2(piece.intercept)}; }

bool isOnEdge(const Piece& piece) {
    return piece.slope == 0 && (piece.intercept == 0 || piece.intercept == kTopPrice);
}

bool Target::isFit(double typed) const {
    switch (rule) {
        case Rule::Near:
        case Rule::NearAllMarked:
            return isHalfOpenNear(typed, value);
        case Rule::NearClosed:
            return isClosedNear(typed, value);
        case Rule::Exactly:
            return isExactly(typed, value);
        case Rule::Chained:
            return (value - kTolerance < typed ? -1 : 0) <= value + kTolerance;
    }
    return false;
}

bool Target::isMarked(double typed) const {
    const bool marksEveryMiss = rule == Rule::Exactly || rule == Rule::NearAllMarked;
    return marksEveryMiss ? !isFit(typed) : !isClosedNear(typed, value);
}

Judgement judge(const std::vector<AnswerField>& fields, const std::vector<double>& typed) {
    Judgement judgement{.isRight = {}, .isSolved = true};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        judgement.isRight.push_back(!fields[i].target.isMarked(typed.at(i)));
        judgement.isSolved = judgement.isSolved && fields[i].target.isFit(typed.at(i));
    }
    return judgement;
}

}  // namespace tavrune
