#pragma once

#include <functional>
#include <map>
#include <vector>

#include <QAccessible>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

namespace tavrune {

/// What a window has for the words that are said: never seen.
class Announcements : public QWidget {
    Q_OBJECT

public:
    /// That of a window, made when it is first wanted.
    [[nodiscard]] static Announcements& of(QWidget& window);

    /// The next notification, with the words for its name. They take turns: a reader asks for a name some
    /// time after it has heard of it, and passes by what appears twice.
    [[nodiscard]] QWidget* next(const QString& words);

private:
    explicit Announcements(QWidget& window);

    std::vector<QWidget*> notifications_;
    std::size_t next_{};
};

/// What a screen reader is told beside what it finds on a page by itself: tasks, verdicts, worked lines.
///
/// Screen readers say what has the focus, and little else. Qt before 6.8 has no way to have other words said,
/// so they go out as the names of notifications that appear on a status bar which nobody sees: those are read
/// out, without a word on what they are. Whatever Qt itself tells passes here first: what would have a reader
/// take a field for said before it is, or say what nobody sees, is kept from it.
class Voice : public QObject {
    Q_OBJECT

public:
    /// The only one, for as long as there is an application.
    [[nodiscard]] static Voice& instance();

    /// Whether there is anybody to hear what is said. Otherwise finding words is idle work.
    [[nodiscard]] bool isHeard() const;

    /// From now on all that Qt tells a screen reader passes here.
    void takeOver();

    /// Takes what Qt tells, and passes it on: at once, at the end of the round, or not at all.
    void filter(QAccessibleEvent& event);

    /// Where it is passed on to; an empty one is the platform's screen reader, as at first.
    using Outlet = std::function<void(QAccessibleEvent& event)>;
    void setOutlet(Outlet outlet) { outlet_ = std::move(outlet); }

    /// Has words said: at once, or, in a round, at its end. Empty words are left out.
    void say(const QString& words);

    /// At the end of the round, where the focus is is told again, even if it has not moved.
    void tellFocusAgain() { focusIsDue_ = true; }

    /// While a round lasts, the focus is kept back, and with it what happens to texts: what a student does
    /// may move the focus first and find the words later. At its end the words are said, then the focus.
    /// Rounds may stand in each other; the outermost one counts.
    class Round {
    public:
        Round() { instance().begin(); }
        ~Round() { instance().end(); }
        Round(const Round&) = delete;
        Round& operator=(const Round&) = delete;
    };

signals:
    /// Words have been said.
    void said(const QString& words);

private:
    Voice() = default;

    static void pass(QAccessibleEvent* event);
    void deliver(QAccessibleEvent& event);
    void sayNow(const QString& words);

    void begin();
    void end();
    /// What stands on the active window, and whether it is told to be seen. What has gone is never looked at.
    using Sights = std::map<QWidget*, bool>;
    [[nodiscard]] Sights sightsNow() const;
    void tellSights();

    Outlet outlet_;
    int rounds_ = 0;
    QStringList words_;
    bool focusIsKeptBack_{};
    bool focusIsDue_{};
    /// What a screen reader knows to have the focus.
    QPointer<QObject> focus_;
    /// All that was on the window when the last round ended.
    Sights sights_;
};

}  // namespace tavrune
