#pragma once

#include <array>
#include <string_view>

namespace tavrune {

/// Every page of the program, those that are not built yet included.
enum class PageName {
    Opstart,
    Form1,
    Form2,
    FrmAbout,
    Afsaet,
    Roedder,
    Topp,
    Rogt,
    Brok,
    Dlinie,
    Diff,
    Konvert,
    Gtm,
    Integ,
    Integ2,
    Lininter,
    Laddi1,
    Laddi2,
    Vaddi1,
    Vaddi2,
    Vaddi3,
    Tomto,
};

inline constexpr std::array kExercisePages{
    PageName::Afsaet, PageName::Roedder,  PageName::Topp,    PageName::Rogt,   PageName::Brok,
    PageName::Dlinie, PageName::Diff,     PageName::Konvert, PageName::Gtm,    PageName::Integ,
    PageName::Integ2, PageName::Lininter, PageName::Laddi1,  PageName::Laddi2, PageName::Vaddi1,
    PageName::Vaddi2, PageName::Vaddi3,   PageName::Tomto,
};

/// The page's own name, in UTF-8: "Brok", "dlinie", "Rødder", "afsæt".
[[nodiscard]] std::string_view textOf(PageName name);

}  // namespace tavrune
