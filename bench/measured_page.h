#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "app/program.h"
#include "conformance/facts.h"
#include "numeric/draws.h"
#include "speed_table.h"
#include "support/student.h"

namespace tavrune::bench {

/// The draws of the program with a seed that can be set again.
class RepeatableDraws final : public Draws {
public:
    float Rnd() override {
        ++drawn_;
        return stream_->Rnd();
    }
    void Randomize() override {}

    void start(std::uint64_t seed) { stream_ = std::make_unique<SeededDraws>(seed); }
    [[nodiscard]] long long drawn() const { return drawn_; }

private:
    std::unique_ptr<SeededDraws> stream_ = std::make_unique<SeededDraws>(1);
    long long drawn_ = 0;
};

/// Times what a student waits for on one form, each up to the picture on the display, in milliseconds.
class MeasuredPage final : public QObject {
public:
    explicit MeasuredPage(const test::FormFacts& facts, Zoom zoom = {});

    /// One round of everything.
    void measure(std::uint64_t seed);

    /// One round of what is done to the size of the page: it is chosen, and the window is dragged larger and
    /// smaller. Each is a sample with the help closed and open.
    void measureSizes(std::uint64_t seed);

    [[nodiscard]] const test::FormFacts& facts() const { return facts_; }

    Samples opening;
    Samples newExercise;
    Samples judging;
    Samples helping;
    Samples sizing;
    Samples dragging;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    [[nodiscard]] test::Student student() const { return test::Student(*program_->page()); }

    using Milliseconds = std::chrono::duration<double, std::milli>;

    /// Runs `action` and everything that comes of it, until the display shows it.
    [[nodiscard]] double timed(const std::function<void()>& action);
    void take(Samples& samples, const std::function<void()>& action);
    [[nodiscard]] bool dismissMessages();
    void openByMenu(std::uint64_t seed);
    void judgeWrong();
    void judgeRight(std::uint64_t seed);
    /// Without a way of the pointer, which is not measured.
    void press(const std::string& button) const;

    void size();
    void drag();

    test::FormFacts facts_;
    Zoom zoom_;
    RepeatableDraws draws_;
    std::unique_ptr<Program> program_;
    static constexpr long long kNone = -1;
    bool isPainted_ = false;
    // A picture counts once there are other draws than these.
    long long drawnBefore_ = kNone;
};

}  // namespace tavrune::bench
