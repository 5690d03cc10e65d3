#pragma once

#include <QEvent>
#include <QObject>

namespace tavrune::test {

/// Counts the events of one kind that come to something from now on.
///
///     const EventCount paints(button, QEvent::Paint);
///     resize({1500, 1100});
///     EXPECT_EQ(paints.count(), 1);
class EventCount : public QObject {
public:
    EventCount(QObject& watched, QEvent::Type kind) : kind_(kind) { watched.installEventFilter(this); }

    [[nodiscard]] int count() const { return count_; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count_ += event->type() == kind_ ? 1 : 0;
        return false;
    }

private:
    QEvent::Type kind_;
    int count_ = 0;
};

}  // namespace tavrune::test
