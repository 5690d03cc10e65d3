// The arrows between the rooms: which may include which.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace tavrune {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = TAVRUNE_SOURCE_DIR;

struct Include {
    std::string file;
    std::string room;
    std::string header;
    bool isOwn;
};

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

bool isExercise(const std::string& path) {
    return path.rfind("topics/", 0) == 0 &&
           (endsWith(path, "_exercise.h") || endsWith(path, "_exercise.cpp") ||
            path.find("_model.") != std::string::npos);
}

/// The room of a path below src/: "numeric", "graph", "exercise/basics", "form/basics", ...
std::string roomOf(const std::string& path) {
    std::string first = path.substr(0, path.find('/'));
    if (first != "topics") {
        return first;
    }
    const std::string folder = path.substr(7, path.find('/', 7) - 7);
    return (isExercise(path) ? "exercise/" : "form/") + folder;
}

std::vector<Include> allIncludes() {
    static const std::regex line(R"(^\s*#\s*include\s*([<"])([^">]+)[">])");
    std::vector<Include> found;
    for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
        const std::string extension = entry.path().extension();
        if (extension != ".h" && extension != ".cpp") {
            continue;
        }
        const std::string file = fs::relative(entry.path(), kSource).generic_string();
        std::ifstream in(entry.path());
        for (std::string text; std::getline(in, text);) {
            std::smatch match;
            if (std::regex_search(text, match, line)) {
                found.push_back({file, roomOf(file), match[2], match[1] == "\""});
            }
        }
    }
    return found;
}

/// Between kinds of rooms: exercises and forms stand for those of every subject.
const std::map<std::string, std::set<std::string>> kArrows{
    {"controls", {"numeric"}},
    {"graph", {"numeric", "controls"}},
    {"shell", {"numeric", "controls", "graph"}},
    {"exercise", {"numeric"}},
    {"form", {"numeric", "controls", "graph", "shell", "exercise"}},
    {"app", {"numeric", "controls", "graph", "shell", "form"}},
};

/// "form" for "form/basics", "graph" for "graph".
std::string kindOf(const std::string& room) { return room.substr(0, room.find('/')); }

/// "/basics" for "form/basics", nothing for "graph".
std::string subjectOf(const std::string& room) { return room.substr(kindOf(room).size()); }

bool mayInclude(const std::string& from, const std::string& to) {
    if (from == to) {
        return true;
    }
    const bool areOfTwoSubjects =
        !subjectOf(from).empty() && !subjectOf(to).empty() && subjectOf(from) != subjectOf(to);
    const auto row = kArrows.find(kindOf(from));
    return !areOfTwoSubjects && row != kArrows.end() && row->second.contains(kindOf(to));
}

TEST(Arrows, AreTheOnlyWaysBetweenTheRooms) {
    const std::vector<Include> includes = allIncludes();
    ASSERT_GT(includes.size(), 50U);
    for (const Include& include : includes) {
        if (include.isOwn) {
            EXPECT_TRUE(mayInclude(include.room, roomOf(include.header)))
                << include.file << " includes " << include.header;
        }
    }
}

TEST(Arrows, AreAllUsed) {
    std::set<std::pair<std::string, std::string>> used;
    for (const Include& include : allIncludes()) {
        if (include.isOwn) {
            // The build writes this header, which includes all forms.
            const bool isOfForms = include.header == "app/forms.h";
            used.emplace(kindOf(include.room), isOfForms ? "form" : kindOf(roomOf(include.header)));
        }
    }
    for (const auto& [from, targets] : kArrows) {
        for (const std::string& to : targets) {
            EXPECT_TRUE(used.contains({from, to})) << from << " -> " << to;
        }
    }
}

TEST(Arrows, KeepQtOutOfNumbersAndExercises) {
    for (const Include& include : allIncludes()) {
        const bool isCore = include.room == "numeric" || include.room.rfind("exercise/", 0) == 0;
        EXPECT_FALSE(isCore && !include.isOwn && include.header.rfind('Q', 0) == 0)
            << include.file << " includes " << include.header;
    }
}

// The headers of exercises too, which forms include.
TEST(Arrows, KeepJudgingOutOfForms) {
    for (const Include& include : allIncludes()) {
        const bool isForForms = include.room.rfind("form/", 0) == 0 || endsWith(include.file, ".h");
        EXPECT_FALSE(isForForms && include.header == "numeric/judging.h") << include.file;
    }
}

std::string contentOf(const std::string& file) {
    std::ifstream in(kSource / file);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The files below src/topics whose names end so.
std::vector<std::string> topicFiles(const std::string& end) {
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(kSource / "topics")) {
        const std::string file = fs::relative(entry.path(), kSource).generic_string();
        if (endsWith(file, end)) {
            files.push_back(file);
        }
    }
    return files;
}

TEST(Judging, IsOneFunctionOfEachExercise) {
    static const std::regex declaration(R"(Judgement judge\(const \w+State& \w+, const [\w:<>]+& \w+\);)");
    const std::vector<std::string> exercises = topicFiles("_exercise.h");
    EXPECT_EQ(exercises.size(), 18U);
    for (const std::string& file : exercises) {
        const std::string text = contentOf(file);
        EXPECT_EQ(std::distance(std::sregex_iterator(text.begin(), text.end(), declaration), {}), 1) << file;
    }
}

/// The statements of a form that write into the state of its exercise, or take a way to it by which they
/// could. Calls of the exercise's own functions do not count.
std::vector<std::string> writesIn(const std::string& code) {
    const std::string state = R"(\bstate_(\s*(\.|->)\s*\w+(\([^()]*\))?|\s*\[[^\]]*\])*)";
    static const std::regex write(
        state + R"(\s*([-+*/%&|^]|<<|>>)?=(?!=))" + "|" + R"((\+\+|--)\s*)" + state + "|" + state +
        R"(\s*(\+\+|--))" + "|" + state +
        R"(\.(push_back|emplace\w*|clear|assign|insert|erase|resize|fill|pop_back|swap|reset)\()");
    static const std::regex way(R"([\w>]\s*&\s*(\w+|\[[^\]]*\])\s*[=:]\s*)" + state + "|" +
                                R"([=(,{:[]\s*&\s*)" + state + "|" + R"(\b\w+State\s*&)");
    static const std::regex readOnly(R"(\bconst\b)");
    std::string text = std::regex_replace(code, std::regex("//[^\n]*"), "");
    text = std::regex_replace(text, std::regex("[{}]\\s*\n"), ";");
    std::vector<std::string> found;
    std::istringstream statements(text);
    for (std::string one; std::getline(statements, one, ';');) {
        if (std::regex_search(one, write) ||
            (std::regex_search(one, way) && !std::regex_search(one, readOnly))) {
            found.push_back(one);
        }
    }
    return found;
}

TEST(States, AreWrittenByTheirExercisesAlone) {
    std::size_t readers = 0;
    for (const char* end : {".cpp", ".h"}) {
        for (const std::string& file : topicFiles(end)) {
            if (isExercise(file)) {
                continue;
            }
            const std::string text = contentOf(file);
            readers += text.find("state_") == std::string::npos ? 0 : 1;
            for (const std::string& write : writesIn(text)) {
                ADD_FAILURE() << file << ":" << write;
            }
        }
    }
    EXPECT_GE(readers, 36U) << "the state of a form is called so";
}

TEST(States, AreSeenToBeWritten) {
    for (const char* write :
         {"state_.x = 1;", "state_ = {};", "state_.line.slope += 2;", "state_.row[i] = 0;", "++state_.x;",
          "state_.x--;", "state_.segments.push_back(s);", "state_.row.at(2) = 1;", "auto& s = state_;",
          "for (auto& [a, b] : state_.rows) {", "auto* s = &state_;", "state_\n    .x = 1;",
          "XState& s = state_.inner;", "write(&state_);", "void fill(XState& s);"}) {
        EXPECT_EQ(writesIn(write).size(), 1U) << write;
    }
    for (const char* read :
         {"x = state_.x;", "if (state_.x == 1) {", "return state_.x <= 1;", "const XState& s = state_;",
          "state_.x != 2;", "// state_.x = 1\n", "newExercise(state_, draws());", "f(state_.x, y = 2);",
          "const auto& [a, b] = state_.line;", "other_state_.x = 1;", "a && state_.isJump();"}) {
        EXPECT_TRUE(writesIn(read).empty()) << read;
    }
}

TEST(Arrows, ForbidWhatTheyShould) {
    EXPECT_FALSE(mayInclude("numeric", "graph"));
    EXPECT_FALSE(mayInclude("shell", "form/basics"));
    EXPECT_FALSE(mayInclude("graph", "shell"));
    EXPECT_FALSE(mayInclude("controls", "shell"));
    EXPECT_FALSE(mayInclude("exercise/basics", "controls"));
    EXPECT_FALSE(mayInclude("exercise/basics", "exercise/calculus"));
    EXPECT_FALSE(mayInclude("exercise/basics", "form/basics"));
    EXPECT_FALSE(mayInclude("form/basics", "exercise/calculus"));
    EXPECT_FALSE(mayInclude("form/basics", "form/calculus"));
    EXPECT_FALSE(mayInclude("form/basics", "app"));
    EXPECT_TRUE(mayInclude("form/basics", "exercise/basics"));
    EXPECT_TRUE(mayInclude("app", "form/basics"));
}

}  // namespace
}  // namespace tavrune
