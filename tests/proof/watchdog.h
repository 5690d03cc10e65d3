#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace tavrune::test {

/// Sees that every event is dealt with in time. One that comes back too late is told of by `end`; one that
/// never comes back ends the test program with a report, and so does a crash.
class Watchdog {
public:
    Watchdog();
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

    /// `where` is told if the program does not come back.
    void begin(const std::string& where);

    /// Tells more exactly what is being done.
    void note(const std::string& what);

    /// Empty if the event has passed in time, otherwise what is wrong. An event has a second; on a machine
    /// that was busy with other things meanwhile, it has a second of its own. A heavy one has ten under the
    /// sanitizers, which take most of them for themselves.
    [[nodiscard]] std::string end(bool isHeavy = false);

    [[nodiscard]] std::chrono::milliseconds longest() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(longest_);
    }

private:
    using Clock = std::chrono::steady_clock;

    void watch();

    std::string where_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool isOver_ = false;
    bool isUnderWay_ = false;
    Clock::time_point since_;
    double cpuSince_ = 0;
    Clock::duration longest_{};
    // Last, so that it sees all the others.
    std::thread guard_;
};

}  // namespace tavrune::test
