#include "graph/colour_name.h"

#include <algorithm>
#include <array>

#include "controls/control.h"

namespace tavrune {
namespace {

struct NamedColour {
    QColor colour;
    const char* name;
};

}  // namespace

const char* nameOf(const QColor& colour) {
    static const std::array kNames{
        NamedColour{kBlack, "sort"},
        NamedColour{kRed, "rød"},
        NamedColour{kGreen, "grøn"},
        NamedColour{rgb(0, 190, 0), "grøn"},
        NamedColour{kBlue, "blå"},
        NamedColour{rgb(255, 190, 0), "gul"},
        NamedColour{rgb(255, 90, 0), "orange"},
        NamedColour{rgb(200, 90, 0), "brun"},
        NamedColour{rgb(255, 0, 255), "lilla"},
        NamedColour{rgb(128, 128, 128), "grå"},
        NamedColour{kWhite, "hvid"},
    };
    const auto distance = [&colour](const NamedColour& named) {
        const int red = named.colour.red() - colour.red();
        const int green = named.colour.green() - colour.green();
        const int blue = named.colour.blue() - colour.blue();
        return red * red + green * green + blue * blue;
    };
    return std::min_element(
               kNames.begin(), kNames.end(),
               [&distance](const auto& one, const auto& other) { return distance(one) < distance(other); })
        ->name;
}

}  // namespace tavrune
