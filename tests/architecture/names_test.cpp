// docs/names.md tells the names of all controls: it and the designer files say the same.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "shell/page_name.h"

namespace tavrune {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = TAVRUNE_SOURCE_DIR;

using Names = std::vector<std::string>;

std::string contentOf(const fs::path& file) {
    std::ifstream in(file);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

/// The file name of a page's design: "Rødder" -> "roedder", "frmAbout" -> "frm_about".
std::string fileNameOf(std::string page) {
    for (const auto& [letter, ascii] :
         {std::pair{"æ", "ae"}, {"ø", "oe"}, {"å", "aa"}, {"frmAbout", "frm_about"}}) {
        if (const auto at = page.find(letter); at != std::string::npos) {
            page.replace(at, std::string(letter).size(), ascii);
        }
    }
    std::transform(page.begin(), page.end(), page.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return page;
}

/// The names of the controls of every designer file, in its order; the outermost widget is none.
std::map<std::string, Names> designedNames() {
    static const std::regex widget("<widget class=\"[^\"]+\" name=\"([^\"]+)\"");
    std::map<std::string, Names> pages;
    for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
        if (entry.path().extension() != ".ui") {
            continue;
        }
        const std::string text = contentOf(entry.path());
        Names& names = pages[entry.path().stem()];
        for (std::sregex_iterator at(text.begin(), text.end(), widget), end; at != end; ++at) {
            names.push_back((*at)[1]);
        }
        names.erase(names.begin());
    }
    return pages;
}

struct ToldNames {
    Names inRequests;
    Names inTheCode;
};

/// The tables of docs/names.md, by the file names of the pages; a control that is gone is left out of the
/// code's.
std::map<std::string, ToldNames> toldNames() {
    static const std::regex row(R"(^\| (\S+) \| (\S+) \|$)");
    std::map<std::string, ToldNames> pages;
    std::istringstream lines(contentOf(kSource / "../docs/names.md"));
    std::string page;
    bool isTable = false;
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (line.starts_with("## ")) {
            page = fileNameOf(line.substr(3));
            isTable = false;
        } else if (line == "| in requests | in the code |") {
            isTable = true;
        } else if (isTable && std::regex_match(line, match, row) && match[1] != "---") {
            pages[page].inRequests.push_back(match[1]);
            if (match[2] != "—") {
                pages[page].inTheCode.push_back(match[2]);
            }
        }
    }
    return pages;
}

TEST(Names, AreToldOfEveryPageAndOfNoOther) {
    const auto designed = designedNames();
    const auto told = toldNames();
    // The start page, the two on the use of the program and the about box have no exercise.
    EXPECT_EQ(designed.size(), kExercisePages.size() + 4);
    for (const auto& [page, names] : designed) {
        EXPECT_TRUE(told.contains(page)) << page;
    }
    for (const auto& [page, names] : told) {
        EXPECT_TRUE(designed.contains(page)) << page;
    }
}

TEST(Names, OfTheCodeAreThoseOfTheDesignerFilesInTheirOrder) {
    const auto told = toldNames();
    for (const auto& [page, names] : designedNames()) {
        ASSERT_TRUE(told.contains(page)) << page;
        EXPECT_EQ(told.at(page).inTheCode, names) << page;
    }
}

TEST(Names, EachStandOnTheirPageJustOnce) {
    for (const auto& [page, names] : toldNames()) {
        for (const Names& side : {names.inRequests, names.inTheCode}) {
            std::set<std::string> seen;
            for (const std::string& name : side) {
                EXPECT_TRUE(seen.insert(name).second) << page << ": " << name << " twice";
            }
        }
    }
}

TEST(Names, AreWordsThatDoNotOnlyCount) {
    static const std::regex form("[a-z][A-Za-z]*([0-9]+[A-Za-z]*)*");
    static const std::regex counted(
        "(Label|Text|Command|Picture|Line|Option|Vis|label|box|button|text|line)[0-9]+$");
    for (const auto& [page, names] : designedNames()) {
        for (const std::string& name : names) {
            EXPECT_TRUE(std::regex_match(name, form)) << page << ": " << name;
            EXPECT_FALSE(std::regex_search(name, counted)) << page << ": " << name;
        }
    }
}

}  // namespace
}  // namespace tavrune
