#pragma once

#include <map>
#include <string>
#include <vector>

#include "shell/page.h"
#include "support/blind_student.h"

namespace tavrune::test {

/// Writes down what a page does, for all of it to be compared with what it did before: a line for each
/// control that has changed between two moments, with what of it has changed, and one for all that was said.
/// Places are those of
/// the design, so that nothing hangs on a screen; what follows a text hangs on the font. Precondition: the
/// page outlives the record.
///
///     PageRecord record(page);
///     student.click("ok");
///     record.note("ok");
class PageRecord {
public:
    explicit PageRecord(Page& page);

    /// Adds a moment, headed by what led to it; the first one is the whole page.
    void note(const std::string& action);

    /// Forgets what was said since.
    void skip() { static_cast<void>(ear_.heard()); }

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

private:
    using Properties = std::map<std::string, std::string>;

    [[nodiscard]] std::map<std::string, Properties> state() const;

    Page& page_;
    BlindStudent ear_;
    std::map<std::string, Properties> last_;
    std::vector<std::string> lines_;
};

}  // namespace tavrune::test
