#pragma once

#include <memory>
#include <vector>

#include "numeric/draws.h"
#include "shell/page.h"

namespace tavrune {

/// The pages that are built, in no particular order. The about box is none: it has no menu.
[[nodiscard]] std::vector<PageName> builtPages();

[[nodiscard]] bool isBuilt(PageName name);

/// A new page in its design state, not yet shown. Precondition: `isBuilt(name)`.
[[nodiscard]] std::unique_ptr<Page> makePage(PageName name, Draws& draws);

}  // namespace tavrune
