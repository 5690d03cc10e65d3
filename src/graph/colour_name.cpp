#include "graph/colour_name.h"

#include <algorithm>
#include <array>
#include <utility>

#include "controls/control.h"

namespace tavrune {

const char* nameOf(const QColor& colour) {
    static const std::array kNames{
        std::pair{kBlack, "sort"},
        std::pair{kRed, "rød"},
        std::pair{kGreen, "grøn"},
        std::pair{rgb(0, 190, 0), "grøn"},
        std::pair{kBlue, "blå"},
        std::pair{rgb(255, 190, 0), "gul"},
        std::pair{rgb(255, 90, 0), "orange"},
        std::pair{rgb(200, 90, 0), "brun"},
        std::pair{rgb(255, 0, 255), "lilla"},
        std::pair{rgb(128, 128, 128), "grå"},
        std::pair{kWhite, "hvid"},
    };
    const auto distance = [&colour](const auto& named) {
        const int red = named.first.red() - colour.red();
        const int green = named.first.green() - colour.green();
        const int blue = named.first.blue() - colour.blue();
        return red * red + green * green + blue * blue;
    };
    return std::min_element(
               kNames.begin(), kNames.end(),
               [&distance](const auto& one, const auto& other) { return distance(one) < distance(other); })
        ->second;
}

}  // namespace tavrune
