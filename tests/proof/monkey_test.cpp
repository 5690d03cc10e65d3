// Rough hands on every page. TAVRUNE_PROOF=full throws a million events at them all; TAVRUNE_PROOF_EVENTS
// says how many at each, TAVRUNE_PROOF_SEED which.

#include <gtest/gtest.h>

#include "app/pages.h"
#include "conformance/facts.h"
#include "proof/counts.h"
#include "proof/rough_hands.h"
#include "proof/watchdog.h"
#include "support/record.h"

namespace tavrune {
namespace {

// So few that what fails is soon repeated.
constexpr long long kEventsASeed = 1'000;

long long eventsAPage() {
    constexpr long long kOrdinary = 10'000;
    constexpr long long kFull = 1'000'000;
    const auto pages = static_cast<long long>(allPages().size());
    return test::numberFromEnvironment("TAVRUNE_PROOF_EVENTS",
                                       test::isFullProof() ? (kFull + pages - 1) / pages : kOrdinary);
}

class EveryPage : public testing::TestWithParam<PageName> {
protected:
    /// Throws events of one seed; false if the page has not stood them.
    bool throwEvents(std::uint64_t seed, long long count) {
        SeededDraws draws(seed);
        test::SeededChoices choices(seed);
        const std::string where = std::string(textOf(GetParam())) + ", seed " + std::to_string(seed);
        watchdog.begin(where + ", opening");
        test::RoughHands hands(GetParam(), choices, draws);
        std::string complaint = watchdog.end();
        hands.onAct([this](const std::string& act) { watchdog.note(act); });
        long long event = 0;
        for (; event < count && complaint.empty(); ++event) {
            watchdog.begin(where + ", event " + std::to_string(event));
            const bool wasHeavy = hands.isHeavy();
            hands.act();
            complaint = watchdog.end(wasHeavy || hands.isHeavy());
            if (complaint.empty()) {
                complaint = hands.complaint();
            }
        }
        openings += hands.openings();
        knownFailures += hands.knownFailures();
        EXPECT_TRUE(complaint.empty())
            << where << ", event " << event - 1 << " (" << hands.lastAct() << "): " << complaint;
        return complaint.empty();
    }

    test::Watchdog watchdog;
    long long openings = 0;
    long long knownFailures = 0;
};

INSTANTIATE_TEST_SUITE_P(Pages, EveryPage, testing::ValuesIn(allPages()),
                         [](const auto& row) { return test::asciiNameOf(row.param); });

TEST_P(EveryPage, StandsRoughHands) {
    const auto first = static_cast<std::uint64_t>(test::numberFromEnvironment("TAVRUNE_PROOF_SEED", 1));
    const long long all = eventsAPage();
    std::uint64_t seed = first;
    for (long long thrown = 0; thrown < all; thrown += kEventsASeed, ++seed) {
        if (!throwEvents(seed, std::min(kEventsASeed, all - thrown))) {
            return;
        }
    }
    test::record({{"page", std::string(textOf(GetParam()))},
                  {"events", std::to_string(all)},
                  {"openings", std::to_string(openings)},
                  {"knownFailures", std::to_string(knownFailures)},
                  {"longestEvent", std::to_string(watchdog.longest().count())}});
    const test::FormFacts* const facts = test::factsOf(GetParam());
    EXPECT_TRUE(knownFailures == 0 || (facts != nullptr && facts->mayFail()) || openings > 1);
}

}  // namespace
}  // namespace tavrune
