#include "topics/addition/addition_model.h"

#include "numeric/arithmetic.h"
#include "numeric/judging.h"
#include "numeric/text.h"

namespace tavrune {

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
