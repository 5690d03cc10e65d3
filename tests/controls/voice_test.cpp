#include "controls/voice.h"

#include <QAccessible>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "controls/answer_box.h"
#include "controls/button.h"

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

TEST(NobodysVoice, IsNotHeard) { EXPECT_FALSE(Voice::instance().isHeard()); }

TEST(AnAnnouncement, IsANotificationOnAStatusBarThatNobodySeesAndNeverTheSameTwiceInARow) {
    QWidget window;
    window.show();
    Announcements& announcements = Announcements::of(window);
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
}

}  // namespace
}  // namespace tavrune
