#pragma once

#include <map>
#include <string>

#include <gtest/gtest.h>

namespace tavrune::test {

/// Records figures of the test that runs, which its program writes to the file that --gtest_output=xml names;
/// docs/proof.md.in puts them in by these names.
inline void record(const std::map<std::string, std::string>& figures) {
    for (const auto& [name, figure] : figures) {
        testing::Test::RecordProperty(name, figure);
    }
}

}  // namespace tavrune::test
