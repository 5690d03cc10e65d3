// A student who changes the topic all day long.

#include <malloc.h>

#include <QApplication>
#include <QPixmapCache>

#include <gtest/gtest.h>

#include "app/pages.h"
#include "app/program.h"
#include "proof/counts.h"
#include "support/record.h"
#include "support/student.h"

namespace tavrune {
namespace {

constexpr int kSwitches = 1'000;
// In bytes a switch: what the toolkit itself keeps of a window that is gone is less; a page is hundreds of
// times more.
constexpr long long kGrowthASwitch = 2048;

/// The same exercises in every round.
class RepeatedDraws final : public Draws {
public:
    float Rnd() override { return stream_->Rnd(); }
    void Randomize() override {}
    void restart() { stream_ = std::make_unique<SeededDraws>(7); }

private:
    std::unique_ptr<SeededDraws> stream_ = std::make_unique<SeededDraws>(7);
};

long long allocatedBytes() {
    // What the style keeps of the buttons' pictures is bounded by itself.
    QPixmapCache::clear();
    if (test::isWatched()) {
        return static_cast<long long>(__sanitizer_get_current_allocated_bytes());
    }
    const auto info = mallinfo2();
    return static_cast<long long>(info.uordblks + info.hblkhd);
}

long long objects() {
    long long count = qApp->findChildren<QObject*>().size();
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        count += 1 + window->findChildren<QObject*>().size();
    }
    return count;
}

class Switches : public testing::Test {
protected:
    void SetUp() override {
        program.open(PageName::Opstart);
        test::settle();
    }

    /// Through every page that the menu leads to, by the menu. The number of switches.
    int round() {
        draws.restart();
        int switches = 0;
        for (const PageName target : allPages()) {
            QAction* const entry = program.page()->topicMenu().actionFor(target);
            if (entry == nullptr || !entry->isEnabled()) {
                continue;
            }
            entry->trigger();
            test::settle();
            // Vaddi1 has exercises that fail as they are drawn; this round has none.
            EXPECT_EQ(test::readFailure().message, "");
            if (program.page() == nullptr || program.page()->name() != target) {
                ADD_FAILURE() << "not on " << textOf(target);
                return switches;
            }
            ++switches;
        }
        return switches;
    }

    RepeatedDraws draws;
    Program program{draws};
};

TEST_F(Switches, LeaveNothingBehind) {
    // Fonts, icons and caches are there after the first rounds.
    for (int warming = 0; warming < 3; ++warming) {
        round();
    }
    const long long objectsBefore = objects();
    const auto windowsBefore = QApplication::topLevelWidgets().size();
    const long long bytesBefore = allocatedBytes();
    int switches = 0;
    while (switches < kSwitches && !HasFailure()) {
        switches += round();
    }
    const long long growth = allocatedBytes() - bytesBefore;
    const long long moreObjects = objects() - objectsBefore;
    const auto moreWindows = QApplication::topLevelWidgets().size() - windowsBefore;
    test::record({{"switches", std::to_string(switches)},
                  {"moreObjects", std::to_string(moreObjects)},
                  {"moreWindows", std::to_string(moreWindows)},
                  {"moreBytes", std::to_string(growth)}});
    EXPECT_EQ(moreObjects, 0);
    EXPECT_EQ(moreWindows, 0);
    EXPECT_LT(growth, kGrowthASwitch * switches);
}

}  // namespace
}  // namespace tavrune
