#include "shell/page_name.h"

namespace tavrune {

std::string_view textOf(PageName name) {
    switch (name) {
        case PageName::Opstart:
            return "Opstart";
        case PageName::Form1:
            return "Form1";
        case PageName::Form2:
            return "Form2";
        case PageName::FrmAbout:
            return "frmAbout";
        case PageName::Afsaet:
            return "afsæt";
        case PageName::Roedder:
            return "Rødder";
        case PageName::Topp:
            return "Topp";
        case PageName::Rogt:
            return "Rogt";
        case PageName::Brok:
            return "Brok";
        case PageName::Dlinie:
            return "dlinie";
        case PageName::Diff:
            return "Diff";
        case PageName::Konvert:
            return "Konvert";
        case PageName::Gtm:
            return "Gtm";
        case PageName::Integ:
            return "Integ";
        case PageName::Integ2:
            return "Integ2";
        case PageName::Lininter:
            return "Lininter";
        case PageName::Laddi1:
            return "Laddi1";
        case PageName::Laddi2:
            return "Laddi2";
        case PageName::Vaddi1:
            return "Vaddi1";
        case PageName::Vaddi2:
            return "Vaddi2";
        case PageName::Vaddi3:
            return "Vaddi3";
        case PageName::Tomto:
            return "tomto";
    }
    return "";
}

}  // namespace tavrune
