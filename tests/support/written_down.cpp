#include "support/written_down.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace tavrune::test {

void expectAsWrittenDown(const std::vector<std::string>& lines, const std::string& name) {
    const std::string path = "record/" + name + ".txt";
    std::filesystem::create_directories("record");
    std::ofstream file(path);
    std::ranges::copy(lines, std::ostream_iterator<std::string>(file, "\n"));
    file.close();

    std::ifstream there(TAVRUNE_SOURCE_DIR "/../tests/conformance/" + path);
    std::vector<std::string> written;
    for (std::string line; std::getline(there, line);) {
        written.push_back(line);
    }
    const auto [is, was] = std::ranges::mismatch(lines, written);
    EXPECT_TRUE(is == lines.end() && was == written.end())
        << path << ", line " << is - lines.begin() + 1 << "\nwas "
        << (was == written.end() ? "nothing" : *was) << "\nis  " << (is == lines.end() ? "nothing" : *is);
}

}  // namespace tavrune::test
