// One exercise form, driven by bytes: the first chooses the form, the others are draws, texts, keys and
// clicks.

#include <cstdio>
#include <cstdlib>

#include <QtGlobal>

#include "app/application.h"
#include "app/pages.h"
#include "numeric/text.h"
#include "proof/rough_hands.h"
#include "proof/watchdog.h"

namespace {

using tavrune::test::ByteChoices;

constexpr int kMostActs = 100;

/// Draws out of the same bytes; once they are used up, of a stream, so that every generator ends.
class ByteDraws final : public tavrune::Draws {
public:
    ByteDraws(ByteChoices& bytes, std::uint64_t seed) : bytes_(bytes), rest_(seed) {}

    float Rnd() override {
        // A generator that draws again and again may not eat up everything.
        if (bytes_.areUsedUp() || ++drawn_ > kMostDrawn) {
            return rest_.Rnd();
        }
        const int high = bytes_.next();
        const int middle = bytes_.next();
        return static_cast<float>((high * 256 + middle) * 256 + bytes_.next()) / (1U << 24U);
    }
    void Randomize() override {}

private:
    static constexpr int kMostDrawn = 64;
    ByteChoices& bytes_;
    tavrune::SeededDraws rest_;
    int drawn_ = 0;
};

tavrune::PageName chosenPage(int byte) {
    static const std::vector<tavrune::PageName> pages = tavrune::allPages();
    return pages[static_cast<std::size_t>(byte) % pages.size()];
}

void check(const std::string& complaint, const tavrune::test::RoughHands& hands) {
    if (!complaint.empty()) {
        std::fprintf(stderr, "After %s: %s\n", hands.lastAct().c_str(), complaint.c_str());
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // It lasts as long as the process, whose end is no place for Qt's own tidying up.
    static int count = *argc;
    static const auto* const application = new tavrune::Application(count, *argv);
    Q_UNUSED(application);
    tavrune::setDecimalMark(",");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static tavrune::test::Watchdog watchdog;
    ByteChoices choices({bytes, size});
    ByteDraws draws(choices, size);
    const tavrune::PageName page = chosenPage(choices.next());
    watchdog.begin("opening of " + std::string(textOf(page)));
    tavrune::test::RoughHands hands(page, choices, draws);
    check(watchdog.end(), hands);
    hands.onAct([](const std::string& act) { watchdog.note(act); });
    for (int act = 0; act < kMostActs && !choices.areUsedUp(); ++act) {
        watchdog.begin(std::string(textOf(page)));
        const bool wasHeavy = hands.isHeavy();
        hands.act();
        check(watchdog.end(wasHeavy || hands.isHeavy()), hands);
        check(hands.complaint(), hands);
    }
    return 0;
}
