#pragma once

#include <array>
#include <string_view>

#include "shell/page_table.h"

namespace tavrune {

#define TAVRUNE_NAME(form, ...) form,

/// Every page of the program.
enum class PageName { Opstart, Form1, Form2, FrmAbout, TAVRUNE_EXERCISES(TAVRUNE_NAME) };

#undef TAVRUNE_NAME
#define TAVRUNE_NAME(form, ...) PageName::form,

/// The exercise forms, in the order of the topic menu.
inline constexpr std::array kExercisePages{TAVRUNE_EXERCISES(TAVRUNE_NAME)};

#undef TAVRUNE_NAME

/// Returns the page's own name, in UTF-8: "Brok", "dlinie", "Rødder", "afsæt".
[[nodiscard]] std::string_view textOf(PageName name);

}  // namespace tavrune
