#include "conformance/facts.h"

#include <algorithm>

namespace tavrune::test {
namespace {

using Name = PageName;

/// The forms with particulars.
const std::vector<FormFacts>& toldForms() {
    static const std::vector<FormFacts> forms{
        {Name::Brok, true, false, false, "denominator", "numerator", "", true},
        {Name::Dlinie, true, false, false, "intercept", "slope", "", false},
        {Name::Afsaet, true, false, false, "rangeEnd", "slope", "", false},
        {Name::Konvert, false, true, true, "intercept", "slope", "", true},
        {Name::Tomto, true, false, false, "crossingPointQuantity", "", "crossing", false},
        {Name::Gtm, true, false, false, "mcConstant", "avcQuadraticCoefficient", "", false, 3},
        {Name::Laddi1, false, false, true, "segment2End", "", "", true},
        {Name::Laddi2, false, true, true, "segment4End", "", "", true},
        {Name::Vaddi1, false, true, true, "segment2End", "price1", "", true, 0, true},
        {Name::Vaddi2, false, true, true, "segment3End", "price1", "", true},
        {Name::Vaddi3, false, true, true, "segment4End", "", "", true},
        {Name::Integ, false, false, false, "integral", "integral", "", true},
        {Name::Integ2, false, false, false, "integral", "", "", true},
        {Name::Lininter, false, false, false, "askedCoordinate", "askedCoordinate", "", true},
        {Name::Roedder, false, false, false, "rootTwo", "", "twoRoots", true},
        {Name::Rogt, false, false, false, "vertexQuantity", "", "twoRoots", false},
        {Name::Topp, false, false, false, "vertexQuantity", "vertexPrice", "", true},
        {Name::Diff, false, false, false, "derivative", "derivative", "", true},
    };
    return forms;
}

}  // namespace

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

std::string asciiNameOf(PageName page) {
    std::string name(textOf(page));
    for (const auto& [letter, ascii] : {std::pair{"æ", "ae"}, std::pair{"ø", "oe"}}) {
        if (const auto at = name.find(letter); at != std::string::npos) {
            name.replace(at, 2, ascii);
        }
    }
    return name;
}

std::string asciiName(const testing::TestParamInfo<FormFacts>& row) { return asciiNameOf(row.param.page); }

}  // namespace tavrune::test
