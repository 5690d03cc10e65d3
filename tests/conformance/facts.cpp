#include "conformance/facts.h"

#include "app/pages.h"

namespace tavrune::test {
namespace {

using Name = PageName;

const std::vector<FormFacts>& allForms() {
    static const std::vector<FormFacts> forms{
        {Name::Brok, "newExercise", "ok", "giveAnswer", "help", "verdict", "verdict", false, false,
         "denominator", "numerator", "", "helpPanel", "closeHelp"},
        {Name::Dlinie, "newExercise", "ok", "giveAnswer", "help", "verdict", "verdict", false, false,
         "intercept", "slope", "", "", ""},
        {Name::Afsaet, "newExercise", "ok", "giveAnswer", "help", "verdict", "verdict", false, false,
         "rangeEnd", "slope", "", "", ""},
        {Name::Konvert, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", true, true, "intercept",
         "slope", "", "helpPanel", "closeHelp"},
        {Name::Tomto, "newExercise", "ok", "giveAnswer", "help", "verdict", "verdict", false, false,
         "crossingPointQuantity", "", "crossing", "", ""},
        {Name::Gtm, "newExercise", "ok", "giveAnswer", "help", "verdict", "verdict", false, false,
         "mcConstant", "avcQuadraticCoefficient", "", "diagramHelpPanel", "", 3},
        {Name::Laddi1, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, true,
         "segment2End", "", "", "helpPanel", "closeHelp"},
        {Name::Laddi2, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", true, true, "segment4End",
         "", "", "helpPanel", "closeHelp"},
        {Name::Vaddi1, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", true, true, "segment2End",
         "price1", "", "helpPanel", "closeHelp", 0, true},
        {Name::Vaddi2, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", true, true, "segment3End",
         "price1", "", "helpPanel", "closeHelp"},
        {Name::Vaddi3, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", true, true, "segment4End",
         "", "", "helpPanel", "closeHelp"},
        {Name::Integ, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, false, "integral",
         "integral", "", "helpPanel", "closeHelp"},
        {Name::Integ2, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, false, "integral",
         "", "", "helpPanel", "closeHelp"},
        {Name::Lininter, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, false,
         "askedCoordinate", "askedCoordinate", "", "helpPanel", "closeHelp"},
        {Name::Roedder, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, false, "rootTwo",
         "", "twoRoots", "helpPanel", "closeHelp"},
        {Name::Rogt, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, false,
         "vertexQuantity", "", "twoRoots", "", ""},
        {Name::Topp, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, false,
         "vertexQuantity", "vertexPrice", "", "helpPanel", "closeHelp"},
        {Name::Diff, "newExercise", "ok", "giveAnswer", "help", "right", "wrong", false, false, "derivative",
         "derivative", "", "helpPanel", "closeHelp"},
    };
    return forms;
}

}  // namespace

std::vector<FormFacts> builtForms() {
    std::vector<FormFacts> built;
    for (const FormFacts& form : allForms()) {
        if (isBuilt(form.page)) {
            built.push_back(form);
        }
    }
    return built;
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
