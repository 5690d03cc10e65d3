// Measures everything that a student waits for, and prints one table. Wants a display of its own.
//
//     tavrune_speed [--once] START_PAGE BARE_WINDOW GENERATORS STRIPPED_BINARY
//
// Once, everything but the idling is done a single time: the table is whole then, its figures mean nothing.
//
//     tavrune_speed --idle PLACE_IN_THE_LIST
//
// The rows of the slowest form while a screen reader listens; wants an accessibility bus of its own.
//
//     tavrune_speed --heard
//
// Those of pages that fit a window as large as the screen, and of changes of their size; wants a large
// screen.
//
//     tavrune_speed --fitted

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "app/application.h"
#include "app/pages.h"
#include "measured_page.h"
#include "speed_table.h"

namespace tavrune::bench {
namespace {

/// How often everything is measured.
struct Effort {
    int starts = 40;
    int rounds = 40;
    bool idles = true;
    std::string secondsAGenerator = "0.1";
};

constexpr double kStartBar = 1.15;
constexpr double kMemoryBar = 1.25;
constexpr double kOpeningBar = 16;
constexpr double kActionBar = 8;
constexpr double kSizeBar = 16;
// A page that has come is painted as a whole: of a large display that alone takes half of it.
constexpr double kLargeOpeningBar = 24;
// Of 60 in a second.
constexpr double kFrameBar = 1000.0 / 60;
constexpr double kGeneratorBar = 100'000;
constexpr int kIdleSeconds = 10;
// Until all the windows stand that are opened at once; and how long each stays, so that none uncovers another
// that is still being measured.
constexpr int kSettlingSeconds = 8;
constexpr int kStayingSeconds = 6;

std::string outputOf(const std::string& command) {
    std::string output;
    FILE* const pipe = popen(command.c_str(), "r");
    std::array<char, 4096> buffer{};
    while (pipe != nullptr && std::fgets(buffer.data(), buffer.size(), pipe) != nullptr) {
        output += buffer.data();
    }
    if (pipe == nullptr || pclose(pipe) != 0) {
        std::fprintf(stderr, "%s has failed\n", command.c_str());
        std::exit(EXIT_FAILURE);
    }
    return output;
}

struct Start {
    Samples milliseconds;
    Samples megabytes;

    void take(const std::string& program) {
        const auto before = std::chrono::steady_clock::now().time_since_epoch();
        std::istringstream told(outputOf("exec " + program));
        double painted = 0;
        double kilobytes = 0;
        told >> painted >> kilobytes;
        const double began = std::chrono::duration<double, std::micro>(before).count();
        milliseconds.push_back((painted - began) / 1000);
        megabytes.push_back(kilobytes / 1024);
    }
};

void measureStart(SpeedTable& table, const Effort& effort, const std::string& ours, const std::string& bare) {
    Start tavrune;
    Start window;
    // The first of each finds nothing in memory.
    for (int i = -2; i < effort.starts; ++i) {
        if (i == 0) {
            tavrune = {};
            window = {};
        }
        tavrune.take(ours);
        window.take(bare);
    }
    table.addRatio("Start to the painted start page, against a bare window", "ms", tavrune.milliseconds,
                   window.milliseconds, kStartBar);
    table.addRatio("Most memory up to then, against the same", "MB", tavrune.megabytes, window.megabytes,
                   kMemoryBar);
}

std::uint64_t seedOf(int round) { return static_cast<std::uint64_t>(round) * 1000 + 17; }

void measurePages(SpeedTable& table, const Effort& effort) {
    std::vector<std::unique_ptr<MeasuredPage>> pages;
    for (const test::FormFacts& facts : test::allForms()) {
        pages.push_back(std::make_unique<MeasuredPage>(facts));
    }
    for (int round = 0; round < effort.rounds; ++round) {
        for (const auto& page : pages) {
            page->measure(seedOf(round));
        }
    }
    const auto add = [&](const std::string& what, Samples MeasuredPage::*samples, double bar) {
        for (const auto& page : pages) {
            table.addTimes(std::string(textOf(page->facts().page)) + ": " + what, "ms", (*page).*samples,
                           bar);
        }
    };
    add("menu to the first exercise", &MeasuredPage::opening, kOpeningBar);
    add("\"Ny opgave\"", &MeasuredPage::newExercise, kActionBar);
    add("\"OK\" with its drawing", &MeasuredPage::judging, kActionBar);
    add("help with all its steps", &MeasuredPage::helping, kActionBar);
}

using Pages = std::vector<std::unique_ptr<MeasuredPage>>;

/// A row of the form that is slowest.
void addSlowest(SpeedTable& table, const std::string& what, const Pages& pages,
                Samples MeasuredPage::*samples, double bar) {
    const auto& slowest =
        **std::max_element(pages.begin(), pages.end(), [samples](const auto& one, const auto& other) {
            return quantile((*one).*samples, 0.95) < quantile((*other).*samples, 0.95);
        });
    table.addTimes(what + ", slowest: " + std::string(textOf(slowest.facts().page)), "ms", slowest.*samples,
                   bar);
}

void addSlowestActions(SpeedTable& table, const std::string& when, const Pages& pages, double openingBar) {
    addSlowest(table, when + ", menu to the first exercise", pages, &MeasuredPage::opening, openingBar);
    addSlowest(table, when + ", \"Ny opgave\"", pages, &MeasuredPage::newExercise, kActionBar);
    addSlowest(table, when + ", \"OK\" with its drawing", pages, &MeasuredPage::judging, kActionBar);
    addSlowest(table, when + ", help with all its steps", pages, &MeasuredPage::helping, kActionBar);
}

void measureHeard(SpeedTable& table, const Effort& effort) {
    Pages pages;
    for (const test::FormFacts& facts : test::allForms()) {
        pages.push_back(std::make_unique<MeasuredPage>(facts));
        for (int round = 0; round < effort.rounds; ++round) {
            pages.back()->measure(seedOf(round));
        }
    }
    addSlowestActions(table, "While a screen reader listens", pages, kOpeningBar);
}

void measureFitted(SpeedTable& table, const Effort& effort) {
    // A picture of that size takes its time, and each round of sizes has many samples.
    constexpr int kFewer = 2;
    constexpr int kFewest = 10;
    Pages pages;
    for (const test::FormFacts& facts : test::allForms()) {
        pages.push_back(std::make_unique<MeasuredPage>(facts, Zoom::fitted()));
        for (int round = 0; round < std::max(1, effort.rounds / kFewer); ++round) {
            pages.back()->measure(seedOf(round));
        }
        for (int round = 0; round < std::max(1, effort.rounds / kFewest); ++round) {
            pages.back()->measureSizes(seedOf(round));
        }
    }
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const std::string when =
        "Fitted to " + std::to_string(screen.width()) + " x " + std::to_string(screen.height());
    addSlowestActions(table, when, pages, kLargeOpeningBar);
    addSlowest(table, when + ", another size", pages, &MeasuredPage::sizing, kSizeBar);
    addSlowest(table, when + ", a frame of dragging the window", pages, &MeasuredPage::dragging, kFrameBar);
}

void measureGenerators(SpeedTable& table, const Effort& effort, const std::string& generators) {
    // Name, and of several figures in a row the exercises a second.
    std::istringstream rows(outputOf(generators +
                                     " --benchmark_filter=Generator --benchmark_format=csv"
                                     " --benchmark_min_time=" +
                                     effort.secondsAGenerator + " 2>/dev/null"));
    std::string row;
    while (std::getline(rows, row)) {
        if (row.rfind("\"Generator/", 0) != 0) {
            continue;
        }
        std::vector<std::string> cells;
        std::istringstream split(row);
        for (std::string cell; std::getline(split, cell, ',');) {
            cells.push_back(cell);
        }
        const std::string name = cells[0].substr(11, cells[0].size() - 12);
        double rate = 0;
        std::from_chars(cells.at(6).data(), cells.at(6).data() + cells.at(6).size(), rate);
        table.addRate(name + ": exercises with their solutions", "a second", rate, kGeneratorBar);
    }
}

/// Voluntary waits of all threads so far: each is followed by a wake-up.
long long waits() {
    long long all = 0;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream status(task.path() / "status");
        for (std::string word; status >> word;) {
            if (word == "voluntary_ctxt_switches:") {
                long long count = 0;
                status >> count;
                all += count;
            }
        }
    }
    return all;
}

/// Opens one form, leaves it alone, and tells how often it woke up. The caret does not blink here.
int idle(int place) {
    QApplication::setCursorFlashTime(0);
    ClockDraws draws;
    Program program(draws);
    program.open(test::allForms().at(static_cast<std::size_t>(place)).page);
    long long before = 0;
    QTimer::singleShot(kSettlingSeconds * 1000, [&] { before = waits(); });
    QTimer::singleShot((kSettlingSeconds + kIdleSeconds) * 1000, [&] {
        // The timer of this measurement is one.
        std::printf("%lld\n", waits() - before - 1);
    });
    QTimer::singleShot((kSettlingSeconds + kIdleSeconds + kStayingSeconds) * 1000,
                       [] { QCoreApplication::exit(0); });
    return QCoreApplication::exec();
}

void measureIdling(SpeedTable& table, const std::string& self) {
    const std::vector<test::FormFacts> forms = test::allForms();
    std::string all = "for i in $(seq 0 " + std::to_string(forms.size() - 1) + "); do (echo $i $(" + self +
                      " --idle $i)) & done; wait";
    std::istringstream told(outputOf(all));
    std::size_t place = 0;
    double count = 0;
    double most = 0;
    std::size_t heard = 0;
    while (told >> place >> count) {
        most = std::max(most, count);
        ++heard;
    }
    table.addFact("Forms left alone at once for " + std::to_string(kIdleSeconds) + " s", "",
                  static_cast<double>(heard));
    table.addCount("Wake-ups of any of them but the caret's", "", most, 0);
}

int measure(const Effort& effort, const std::string& self, char** programs) {
    SpeedTable table;
    measureStart(table, effort, programs[0], programs[1]);
    if (effort.idles) {
        measureIdling(table, self);
    }
    measurePages(table, effort);
    measureGenerators(table, effort, programs[2]);
    table.addFact("Stripped binary", "MB",
                  static_cast<double>(std::filesystem::file_size(programs[3])) / (1024 * 1024));
    std::fputs(table.text().c_str(), stdout);
    return table.areAllMet() ? EXIT_SUCCESS : EXIT_FAILURE;
}

/// The rows of one kind, by themselves. Returns the exit status.
int printed(void (*measureRows)(SpeedTable&, const Effort&)) {
    SpeedTable table;
    measureRows(table, {});
    std::fputs(table.text().c_str(), stdout);
    return table.areAllMet() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace tavrune::bench

int main(int argc, char** argv) {
    const tavrune::Application application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--idle") == 0) {
        return tavrune::bench::idle(std::atoi(argv[2]));
    }
    if (argc == 2 && std::strcmp(argv[1], "--heard") == 0) {
        // The toolkit looks for the bus while events are handled.
        constexpr int kTries = 100;
        for (int tried = 0; tried < kTries && !QAccessible::isActive(); ++tried) {
            QTest::qWait(kTries);
        }
        if (!QAccessible::isActive()) {
            std::fprintf(stderr, "There is no accessibility bus.\n");
            return EXIT_FAILURE;
        }
        return tavrune::bench::printed(&tavrune::bench::measureHeard);
    }
    if (argc == 2 && std::strcmp(argv[1], "--fitted") == 0) {
        return tavrune::bench::printed(&tavrune::bench::measureFitted);
    }
    const bool once = argc == 6 && std::strcmp(argv[1], "--once") == 0;
    if (argc != 5 && !once) {
        std::fprintf(stderr, "%s [--once] START_PAGE BARE_WINDOW GENERATORS STRIPPED_BINARY\n", argv[0]);
        return EXIT_FAILURE;
    }
    const auto effort = once ? tavrune::bench::Effort{1, 1, false, "0.001"} : tavrune::bench::Effort{};
    return tavrune::bench::measure(effort, argv[0], argv + argc - 4);
}
