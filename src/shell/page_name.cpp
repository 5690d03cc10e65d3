#include "shell/page_name.h"

namespace tavrune {

std::string_view textOf(PageName name) {
#define TAVRUNE_TEXT(form, text, ...) text,
    static constexpr auto kTexts = std::to_array<std::string_view>(
        {"Opstart", "Form1", "Form2", "frmAbout", TAVRUNE_EXERCISES(TAVRUNE_TEXT)});
#undef TAVRUNE_TEXT
    return kTexts.at(static_cast<std::size_t>(name));
}

}  // namespace tavrune
