#include "conformance/facts.h"

#include <algorithm>

namespace tavrune::test {
namespace {

using Name = PageName;

/// The forms with particulars.
const std::vector<FormFacts>& toldForms() {
    const FormExceptions fraction{.isRedAsAWhole = true};
    const FormExceptions threeGiven{.filledBoxes = 3};
    const FormExceptions vertical{.breaksDecideNothing = true};
    const FormExceptions earlierEnd{.refusal = Refusal::EarlierEnd, .failingStep = "showSum"};
    const FormExceptions helpTable{.refusal = Refusal::HelpTableCell, .dividesByADrawOfZero = true};
    const FormExceptions halves{.refusal = Refusal::NegativeHalves};
    const FormExceptions halvesAndMessage{.refusal = Refusal::NegativeHalves, .helpsByMessage = true};
    const FormExceptions sharedKey{.sharedKeys = {{"Alt+I", {"&Indhold", "&Ingen rødder"}}}};
    static const std::vector<FormFacts> forms{
        {Name::Brok, true, false, false, "denominator", "numerator", "", true, fraction},
        {Name::Dlinie, true, false, false, "intercept", "slope", "", false},
        {Name::Afsaet, true, false, false, "rangeEnd", "slope", "", false},
        {Name::Konvert, false, true, true, "intercept", "slope", "", true},
        {Name::Tomto, true, false, false, "crossingPointQuantity", "", "crossing", false},
        {Name::Gtm, true, false, false, "mcConstant", "avcQuadraticCoefficient", "", false, threeGiven},
        {Name::Laddi1, false, false, true, "segment2End", "", "", true, vertical},
        {Name::Laddi2, false, true, true, "segment4End", "", "", true, vertical},
        {Name::Vaddi1, false, true, true, "segment2End", "price1", "", true, earlierEnd},
        {Name::Vaddi2, false, true, true, "segment3End", "price1", "", true},
        {Name::Vaddi3, false, true, true, "segment4End", "", "", true, helpTable},
        {Name::Integ, false, false, false, "integral", "integral", "", true},
        {Name::Integ2, false, false, false, "integral", "", "", true},
        {Name::Lininter, false, false, false, "askedCoordinate", "askedCoordinate", "", true, halves},
        {Name::Roedder, false, false, false, "rootTwo", "", "twoRoots", true, sharedKey},
        {Name::Rogt, false, false, false, "vertexQuantity", "", "twoRoots", false, halvesAndMessage},
        {Name::Topp, false, false, false, "vertexQuantity", "vertexPrice", "", true, halves},
        {Name::Diff, false, false, false, "derivative", "derivative", "", true},
    };
    return forms;
}

}  // namespace

const char* textOf(Refusal refusal) {
    switch (refusal) {
        case Refusal::NegativeHalves:
            return "negative halves rounded away from zero";
        case Refusal::EarlierEnd:
            return "judged by the upper end of an earlier exercise";
        case Refusal::HelpTableCell:
            return "judged by a cell of the help table";
        case Refusal::None:
            break;
    }
    return "for no reason";
}

const std::vector<FormFacts>& allForms() {
    static const std::vector<FormFacts> all = [] {
        std::vector<FormFacts> forms = toldForms();
        for (const PageName page : kExercisePages) {
            if (std::ranges::find(forms, page, &FormFacts::page) == forms.end()) {
                forms.push_back({page});
            }
        }
        return forms;
    }();
    return all;
}

const FormFacts* factsOf(PageName page) {
    const auto row = std::ranges::find(allForms(), page, &FormFacts::page);
    return row == allForms().end() ? nullptr : &*row;
}

std::string asciiNameOf(PageName page) {
    std::string name(textOf(page));
    for (const auto& [letter, ascii] : {std::pair{"æ", "ae"}, std::pair{"ø", "oe"}}) {
        if (const auto at = name.find(letter); at != std::string::npos) {
            name.replace(at, 2, ascii);
        }
    }
    return name;
}

}  // namespace tavrune::test
