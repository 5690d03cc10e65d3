#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace tavrune::bench {

/// A number out of the record that the kernel keeps of this process.
inline long long processFigure(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == name + ":") {
            long long value = 0;
            status >> value;
            return value;
        }
    }
    return -1;
}

/// Sees the first window painted, tells when that was and how much memory it has taken so far, and ends the
/// process.
class FirstPaint final : public QObject {
public:
    FirstPaint() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::Paint && receiver->isWidgetType() && !isSeen_) {
            isSeen_ = true;
            // The rest of the window is painted, and sent to the display, before this round is over.
            QTimer::singleShot(0, [] {
                QGuiApplication::sync();
                const auto now = std::chrono::steady_clock::now().time_since_epoch();
                std::printf("%lld %lld\n",
                            static_cast<long long>(
                                std::chrono::duration_cast<std::chrono::microseconds>(now).count()),
                            processFigure("VmHWM"));
                std::fflush(stdout);
                std::_Exit(EXIT_SUCCESS);
            });
        }
        return false;
    }

private:
    bool isSeen_ = false;
};

}  // namespace tavrune::bench
