#include "proof/watchdog.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <unistd.h>

#include "proof/counts.h"

namespace tavrune::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kAllowed = 1s;
constexpr auto kAllowedHeavy = 10s;
// A machine that keeps the program waiting for so long has more to do than any test can make up for.
constexpr auto kHang = 60s;

// Where a crash finds what was being done.
std::array<char, 400> report{};

void setReport(const std::string& what) {
    const std::size_t length = std::min(what.size(), report.size() - 2);
    std::memcpy(report.data(), what.data(), length);
    report[length] = '\n';
    report[length + 1] = '\0';
}

void tellOfTheEnd() {
    static constexpr std::string_view start = "The program did not outlive: ";
    const ssize_t written = write(STDERR_FILENO, start.data(), start.size()) +
                            write(STDERR_FILENO, report.data(), std::strlen(report.data()));
    static_cast<void>(written);
}

void onSignal(int signal) {
    tellOfTheEnd();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void hearOfCrashes() {
    if (isWatched()) {
        __sanitizer_set_death_callback(tellOfTheEnd);
        return;
    }
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL}) {
        std::signal(signal, onSignal);
    }
}

/// Seconds that the calling thread has run.
double ownSeconds() {
    timespec spent{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) * 1e-9;
}

}  // namespace

Watchdog::Watchdog() : guard_([this] { watch(); }) { hearOfCrashes(); }

Watchdog::~Watchdog() {
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
    }
    changed_.notify_one();
    guard_.join();
}

void Watchdog::note(const std::string& what) { setReport(where_ + ": " + what); }

void Watchdog::begin(const std::string& where) {
    const std::lock_guard lock(mutex_);
    where_ = where;
    setReport(where);
    isUnderWay_ = true;
    cpuSince_ = ownSeconds();
    since_ = Clock::now();
}

std::string Watchdog::end(bool isHeavy) {
    const std::lock_guard lock(mutex_);
    isUnderWay_ = false;
    const Clock::duration taken = Clock::now() - since_;
    longest_ = std::max(longest_, taken);
    const double own = ownSeconds() - cpuSince_;
    const std::chrono::seconds allowed = isHeavy && isWatched() ? kAllowedHeavy : kAllowed;
    if (taken <= allowed || own <= std::chrono::duration<double>(allowed).count()) {
        return "";
    }
    return "took " + std::to_string(own) + " seconds";
}

void Watchdog::watch() {
    std::unique_lock lock(mutex_);
    while (!isOver_) {
        changed_.wait_for(lock, 1s);
        if (isUnderWay_ && Clock::now() - since_ > kHang) {
            tellOfTheEnd();
            std::_Exit(EXIT_FAILURE);
        }
    }
}

}  // namespace tavrune::test
