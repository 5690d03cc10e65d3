#pragma once

#include <memory>
#include <vector>

#include "numeric/draws.h"
#include "shell/page.h"

namespace tavrune {

/// Returns all pages, the exercise forms in the order of the topic menu. The about box is no page: it has no
/// menu.
[[nodiscard]] std::vector<PageName> allPages();

/// Returns a new page, not yet shown; null for the about box.
[[nodiscard]] std::unique_ptr<Page> makePage(PageName name, Draws& draws);

}  // namespace tavrune
