#include "controls/voice.h"

#include <optional>
#include <utility>
#include <vector>

#include <QAccessible>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "controls/answer_box.h"
#include "controls/label.h"
#include "support/student.h"

namespace tavrune {
namespace {

class AVoice : public testing::Test {
protected:
    [[nodiscard]] QStringList heard() {
        QStringList words;
        for (const QList<QVariant>& one : said_) {
            words << one.front().toString();
        }
        said_.clear();
        return words;
    }

    Voice& voice = Voice::instance();

private:
    QSignalSpy said_{&Voice::instance(), &Voice::said};
};

TEST_F(AVoice, SaysWordsAtOnceAndNoneIfThereAreNone) {
    voice.say("RIGTIGT.");
    EXPECT_EQ(heard(), QStringList{"RIGTIGT."});
    voice.say("");
    EXPECT_TRUE(heard().isEmpty());
}

TEST_F(AVoice, SaysTheWordsOfARoundInOneAtItsEnd) {
    {
        const Voice::Round round;
        voice.say("FORKERT.");
        {
            const Voice::Round inner;
            voice.say("Linie fra (0; 0) til (1; 1), rød.");
        }
        EXPECT_TRUE(heard().isEmpty());
    }
    EXPECT_EQ(heard(), QStringList{"FORKERT. Linie fra (0; 0) til (1; 1), rød."});
    { const Voice::Round silent; }
    EXPECT_TRUE(heard().isEmpty());
}

TEST_F(AVoice, SaysTheSameWordsAsOftenAsItIsAsked) {
    for (int i = 0; i < 20; ++i) {
        voice.say("FORKERT.");
        EXPECT_EQ(heard(), QStringList{"FORKERT."});
    }
}

TEST_F(AVoice, IsHeardByWhoListens) { EXPECT_TRUE(voice.isHeard()); }

/// A screen reader in front of a window with two fields and a label, and what it is told.
class AReader : public testing::Test {
protected:
    using Told = std::pair<QAccessible::Event, const QObject*>;

    AReader() {
        first.setAccessibleName("rod 1");
        second.setAccessibleName("rod 2");
        second.setGeometry(0, 40, 60, 20);
        label.setCaption("FORKERT");
        label.setGeometry(0, 80, 60, 20);
        label.hide();
        window.show();
        window.activateWindow();
        test::settle();
        first.setFocus();
        Voice::instance().setOutlet(
            [](const QAccessibleEvent& event) { told().emplace_back(event.type(), event.object()); });
        listen();
        // What is there already is nothing new.
        { const Voice::Round round; }
        told().clear();
    }

    ~AReader() override { Voice::instance().setOutlet({}); }

    /// All that has come through, in its order.
    [[nodiscard]] static std::vector<Told>& told() {
        static std::vector<Told> told;
        return told;
    }

    /// The notification that has come through as such a one of them.
    [[nodiscard]] static QString wordsOf(std::size_t at) {
        const auto* const notification = qobject_cast<const QWidget*>(told().at(at).second);
        return notification == nullptr ? "" : notification->accessibleName();
    }

    static void tell(QWidget& widget, QAccessible::Event type) {
        QAccessibleEvent event(&widget, type);
        Voice::instance().filter(event);
    }

    QWidget window;
    AnswerBox first{&window};
    AnswerBox second{&window};
    Label label{&window};

    void listen() { listens_.emplace(&Voice::instance(), &Voice::said); }
    void leave() { listens_.reset(); }

private:
    std::optional<QSignalSpy> listens_;
};

TEST_F(AReader, IsToldTheWordsOfARoundThenTheFocus) {
    {
        const Voice::Round round;
        second.setFocus();
        tell(second, QAccessible::Focus);
        Voice::instance().say("FORKERT.");
        EXPECT_TRUE(told().empty());
    }
    ASSERT_EQ(told().size(), 2U);
    EXPECT_EQ(told()[0].first, QAccessible::ObjectShow);
    EXPECT_EQ(wordsOf(0), "FORKERT.");
    EXPECT_EQ(told()[1], Told(QAccessible::Focus, &second));
    { const Voice::Round next; }
    EXPECT_EQ(told().size(), 2U);
}

TEST_F(AReader, IsNotToldTwiceWhereTheFocusHasGone) {
    tell(first, QAccessible::Focus);
    told().clear();
    {
        const Voice::Round round;
        second.setFocus();
        tell(second, QAccessible::Focus);
        Voice::instance().tellFocusAgain();
    }
    EXPECT_EQ(told(), std::vector{Told(QAccessible::Focus, &second)});
}

TEST_F(AReader, IsToldWithoutAWordOfAFieldThatHasNoName) {
    first.setAccessibleName("");
    tell(first, QAccessible::Focus);
    told().clear();
    {
        const Voice::Round round;
        Voice::instance().tellFocusAgain();
        Voice::instance().say("FORKERT.");
    }
    ASSERT_EQ(told().size(), 1U);
    EXPECT_EQ(wordsOf(0).trimmed(), "FORKERT.");
}

TEST_F(AReader, IsToldInTheNextRoundWhatHasComeIntoSightBeforeIt) {
    label.show();
    { const Voice::Round round; }
    EXPECT_EQ(told(), std::vector{Told(QAccessible::ObjectShow, &label)});
}

TEST_F(AReader, IsNotToldInARoundWhatComesAndGoes) {
    const Voice::Round round;
    tell(label, QAccessible::ObjectShow);
    tell(label, QAccessible::ObjectHide);
    EXPECT_TRUE(told().empty());
}

TEST_F(AReader, IsToldNoFocusThatHasNotMoved) {
    { const Voice::Round round; }
    EXPECT_TRUE(told().empty());
}

TEST_F(AReader, IsToldByNameWhereTheFocusStaysIfThatIsAskedFor) {
    tell(first, QAccessible::Focus);
    told().clear();
    {
        const Voice::Round round;
        Voice::instance().say("FORKERT.");
        Voice::instance().tellFocusAgain();
    }
    ASSERT_EQ(told().size(), 1U);
    EXPECT_EQ(wordsOf(0), "FORKERT. rod 1.");
    { const Voice::Round next; }
    EXPECT_EQ(told().size(), 1U) << "it was asked for once";
}

TEST_F(AReader, IsToldAtTheEndOfARoundWhatHasComeIntoSightAndWhatHasGone) {
    {
        const Voice::Round round;
        label.show();
        EXPECT_TRUE(told().empty());
    }
    EXPECT_EQ(told(), std::vector{Told(QAccessible::ObjectShow, &label)});
    told().clear();
    {
        const Voice::Round round;
        label.hide();
        second.hide();
        second.show();
    }
    EXPECT_EQ(told(), std::vector{Told(QAccessible::ObjectHide, &label)});
}

TEST_F(AReader, IsToldWhatComesIntoSightInTheFirstRoundThatIsHeard) {
    leave();
    { const Voice::Round unheard; }
    listen();
    {
        const Voice::Round round;
        label.show();
    }
    EXPECT_EQ(told(), std::vector{Told(QAccessible::ObjectShow, &label)});
}

TEST_F(AReader, IsToldOfTextOnlyInTheFieldWithTheFocusAndOutsideARound) {
    tell(first, QAccessible::Focus);
    told().clear();
    tell(second, QAccessible::TextCaretMoved);
    EXPECT_TRUE(told().empty());
    tell(first, QAccessible::TextCaretMoved);
    EXPECT_EQ(told(), std::vector{Told(QAccessible::TextCaretMoved, &first)});
    told().clear();
    second.setFocus();
    tell(first, QAccessible::TextSelectionChanged);
    EXPECT_TRUE(told().empty()) << "the focus has left it";
    first.setFocus();
    {
        const Voice::Round round;
        tell(first, QAccessible::TextUpdated);
        tell(label, QAccessible::NameChanged);
    }
    EXPECT_EQ(told(), std::vector{Told(QAccessible::NameChanged, &label)});
}

TEST_F(AReader, IsToldNothingWhereThereIsNoWindow) {
    window.hide();
    test::settle();
    told().clear();
    Voice::instance().say("FORKERT.");
    { const Voice::Round round; }
    EXPECT_TRUE(told().empty());
}

TEST(NobodysVoice, IsStillToldByQtOnceItHasPassedOnWhatItWasTold) {
    AnswerBox field;
    const auto installed = [] {
        const auto handler = QAccessible::installUpdateHandler(nullptr);
        QAccessible::installUpdateHandler(handler);
        return handler;
    };
    Voice::instance().takeOver();
    const auto its = installed();
    ASSERT_NE(its, nullptr);
    QAccessibleEvent event(&field, QAccessible::NameChanged);
    its(&event);
    EXPECT_EQ(installed(), its);
    QAccessible::installUpdateHandler(nullptr);
}

TEST(NobodysVoice, IsNotHeard) { EXPECT_FALSE(Voice::instance().isHeard()); }

TEST(AnAnnouncement, IsANotificationOnAStatusBarThatNobodySeesAndNeverTheSameTwiceInARow) {
    QWidget window;
    static_cast<void>(Announcements::of(window));
    window.show();
    Announcements& announcements = Announcements::of(window);
    test::settle();
    EXPECT_EQ(&Announcements::of(window), &announcements);
    EXPECT_FALSE(announcements.isVisible());
    const QAccessibleInterface* const bar = QAccessible::queryAccessibleInterface(&announcements);
    EXPECT_EQ(bar->role(), QAccessible::StatusBar);
    QWidget* const first = announcements.next("FORKERT.");
    const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(first);
    EXPECT_EQ(told->role(), QAccessible::Notification);
    EXPECT_EQ(told->text(QAccessible::Name), "FORKERT.");
    EXPECT_EQ(told->parent(), bar);
    EXPECT_NE(announcements.next("FORKERT."), first);
    EXPECT_EQ(told->text(QAccessible::Name), "FORKERT.") << "who has not asked yet still hears the old words";
    for (int later = 0; later < 6; ++later) {
        static_cast<void>(announcements.next("RIGTIGT."));
    }
    EXPECT_EQ(told->text(QAccessible::Name), "FORKERT.") << "of eight all can still be asked for";
    EXPECT_EQ(announcements.next("RIGTIGT."), first);
}

}  // namespace
}  // namespace tavrune
