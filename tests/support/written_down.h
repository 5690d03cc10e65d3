#pragma once

#include <string>
#include <vector>

namespace tavrune::test {

/// Compares lines with those that are written down as `name` in tests/conformance/record/, and fails at the
/// first that is another one. Leaves them in record/ of the working folder, from where script/record takes
/// them once a change was meant.
void expectAsWrittenDown(const std::vector<std::string>& lines, const std::string& name);

}  // namespace tavrune::test
