// For whoever may lift one of the oddities that are kept: docs/kept.md has a row for each, and these tests
// hold the rows together with the comments in src/ that name them. A row names a test that fails once its
// oddity is gone; that there is such a test is asked here, that it would fail is for whoever writes the row.
// With an oddity go its row and its comments.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = TAVRUNE_SOURCE_DIR;

std::string contentOf(const fs::path& file) {
    std::ifstream in(file);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

/// The C++ files below a folder.
std::vector<fs::path> filesOf(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp") {
            files.push_back(entry.path());
        }
    }
    return files;
}

/// The comments of a text, those in lines below each other as one.
std::vector<std::string> commentsIn(const std::string& text) {
    static const std::regex comment("///? ?(.*)$");
    std::vector<std::string> comments;
    bool goesOn = false;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (!std::regex_search(line, match, comment)) {
            goesOn = false;
            continue;
        }
        const bool isAlone = line.find_first_not_of(' ') == static_cast<std::size_t>(match.position());
        if (goesOn && isAlone) {
            comments.back() += " " + match[1].str();
        } else {
            comments.push_back(match[1]);
        }
        goesOn = isAlone;
    }
    return comments;
}

/// A place in the code where something is said to be kept.
struct Place {
    fs::path file;
    /// Empty where none is named.
    std::string id;
    std::string comment;
};

std::vector<Place> placesIn(const fs::path& file, const std::string& text) {
    static const std::regex kept(R"(\bKept\b(?: \(([^)]*)\)(?=[:,]))?)");
    std::vector<Place> places;
    for (const std::string& comment : commentsIn(text)) {
        for (std::sregex_iterator at(comment.begin(), comment.end(), kept), end; at != end; ++at) {
            places.push_back({file, (*at)[1], comment});
        }
    }
    return places;
}

const std::vector<Place>& places() {
    static const std::vector<Place> all = [] {
        std::vector<Place> found;
        for (const fs::path& file : filesOf(kSource)) {
            for (Place& place : placesIn(file, contentOf(file))) {
                found.push_back(std::move(place));
            }
        }
        return found;
    }();
    return all;
}

/// A row of docs/kept.md.
struct Row {
    std::string id;
    std::string pinnedBy;
};

/// The cells of a line that is a row of a table.
std::vector<std::string> cellsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream rest(line.substr(1));
    for (std::string cell; std::getline(rest, cell, '|');) {
        const auto from = cell.find_first_not_of(' ');
        cells.push_back(from == std::string::npos ? ""
                                                  : cell.substr(from, cell.find_last_not_of(' ') + 1 - from));
    }
    return cells;
}

/// What stands between two backquotes; the text itself without any.
std::string unquoted(const std::string& text) {
    const bool isQuoted = text.size() > 2 && text.front() == '`' && text.back() == '`';
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

const std::vector<Row>& rows() {
    static const std::vector<Row> all = [] {
        std::vector<Row> found;
        std::istringstream lines(contentOf(kSource / "../docs/kept.md"));
        for (std::string line; std::getline(lines, line);) {
            if (!line.starts_with("|") || line.starts_with("| id |") || line.starts_with("|---")) {
                continue;
            }
            const std::vector<std::string> cells = cellsOf(line);
            EXPECT_EQ(cells.size(), 5U) << line;
            EXPECT_TRUE(std::none_of(cells.begin(), cells.end(), [](const auto& c) { return c.empty(); }))
                << line;
            if (cells.size() == 5) {
                found.push_back({unquoted(cells[0]), unquoted(cells[3])});
            }
        }
        return found;
    }();
    return all;
}

/// The tests of the program, as "Suite.Name".
std::set<std::string> testNames() {
    static const std::regex test(R"(\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\))");
    std::set<std::string> names;
    for (const fs::path& file : filesOf(kSource / "../tests")) {
        const std::string text = contentOf(file);
        for (std::sregex_iterator at(text.begin(), text.end(), test), end; at != end; ++at) {
            names.insert((*at)[1].str() + "." + (*at)[2].str());
        }
    }
    return names;
}

/// What an id may begin with: the file name of a form, or what forms share.
std::set<std::string> beginnings() {
    std::set<std::string> words{"shell", "addition", "polynomial"};
    for (const auto& entry : fs::recursive_directory_iterator(kSource / "topics")) {
        if (entry.path().extension() == ".ui") {
            words.insert(entry.path().stem());
        }
    }
    return words;
}

TEST(Kept, NamesARowWhereverItIsSaid) {
    EXPECT_FALSE(places().empty());
    for (const Place& place : places()) {
        EXPECT_FALSE(place.id.empty()) << place.file << ": " << place.comment;
    }
}

TEST(Kept, HasARowForEachIdOfTheCode) {
    std::set<std::string> told;
    for (const Row& row : rows()) {
        told.insert(row.id);
    }
    for (const Place& place : places()) {
        EXPECT_TRUE(place.id.empty() || told.contains(place.id)) << place.file << ": " << place.id;
    }
}

TEST(Kept, HasAPlaceInTheCodeForEachRow) {
    std::set<std::string> inTheCode;
    for (const Place& place : places()) {
        inTheCode.insert(place.id);
    }
    EXPECT_FALSE(rows().empty());
    for (const Row& row : rows()) {
        EXPECT_TRUE(inTheCode.contains(row.id)) << row.id;
    }
}

TEST(Kept, HasIdsThatStandOnceAndBeginWithTheirForm) {
    static const std::regex form("([a-z]+[0-9]?)(-[a-z0-9]+)+");
    const std::set<std::string> first = beginnings();
    std::set<std::string> seen;
    for (const Row& row : rows()) {
        EXPECT_TRUE(seen.insert(row.id).second) << row.id << " twice";
        std::smatch match;
        ASSERT_TRUE(std::regex_match(row.id, match, form)) << row.id;
        EXPECT_TRUE(first.contains(match[1])) << row.id;
    }
}

TEST(Kept, IsPinnedByTestsThatThereAre) {
    const std::set<std::string> tests = testNames();
    for (const Row& row : rows()) {
        EXPECT_TRUE(tests.contains(row.pinnedBy)) << row.id << ": " << row.pinnedBy;
    }
}

TEST(Kept, IsFoundAtTheBeginningOfACommentInItAndOverItsLines) {
    const auto idsIn = [](const std::string& text) {
        std::vector<std::string> ids;
        for (const Place& place : placesIn("x.cpp", text)) {
            ids.push_back(place.id);
        }
        return ids;
    };
    using Ids = std::vector<std::string>;
    EXPECT_EQ(idsIn("// Kept (form-a): why.\n"), Ids{"form-a"});
    EXPECT_EQ(idsIn("    /// What it is. Kept\n    /// (form-b), though nothing asks.\nint x;\n"),
              Ids{"form-b"});
    EXPECT_EQ(idsIn("int x;  // Kept (form-a): x.\n// Kept (form-b): y.\n"), (Ids{"form-a", "form-b"}));
    EXPECT_EQ(idsIn("// Kept: why.\nint x;\n// Kept (form-a) without a mark.\n"), (Ids{"", ""}));
    EXPECT_EQ(idsIn("// The sign is kept beside it.\nint Kept = 0;\n"), Ids{});
}

}  // namespace
}  // namespace tavrune
