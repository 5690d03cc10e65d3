#pragma once

#include <memory>
#include <vector>

#include "numeric/draws.h"
#include "shell/page.h"

namespace tavrune {

/// All pages, the exercise forms in the order of the topic menu. The about box is none: it has no menu.
[[nodiscard]] std::vector<PageName> allPages();

/// A new page in its design state, not yet shown; null for the about box.
[[nodiscard]] std::unique_ptr<Page> makePage(PageName name, Draws& draws);

}  // namespace tavrune
