#pragma once

#include <memory>
#include <utility>

#include "app/pages.h"
#include "numeric/draws.h"
#include "support/student.h"

namespace tavrune::test {

/// Somebody in front of a page of their own: opens any by its name.
class FormDriver : public Student {
public:
    /// Makes the page, shows it, and lets it open.
    FormDriver(PageName name, Draws& draws) : FormDriver(makePage(name, draws)) { show(); }

    /// Makes the page without showing it: its design state.
    static FormDriver unshown(PageName name, Draws& draws) { return FormDriver(makePage(name, draws)); }

    /// Shows the page and lets it open.
    void show() {
        page_->show();
        page_->activateWindow();
        settle();
    }

private:
    explicit FormDriver(std::unique_ptr<Page> page) : Student(*page), page_(std::move(page)) {}

    std::unique_ptr<Page> page_;
};

}  // namespace tavrune::test
