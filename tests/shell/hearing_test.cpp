#include "shell/hearing.h"

#include <gtest/gtest.h>

#include "controls/label.h"
#include "support/student.h"

namespace tavrune {
namespace {

class HearingOfALabel : public testing::Test {
protected:
    HearingOfALabel() {
        label.setAutoSize(true);
        label.setCaption("Find rødderne");
        cover.setBackColour(kWhite);
        cover.setGeometry(0, 0, 200, 50);
        cover.hide();
        design.resize(200, 100);
        design.show();
        hearing.takeForSaid();
    }

    /// What is new once it stands there.
    QStringList newsOf(const char* caption) {
        label.setCaption(caption);
        return hearing.news();
    }

    QWidget design;
    Label label{&design};
    Label cover{&design};
    Hearing hearing{design};
};

TEST_F(HearingOfALabel, TellsATextOnce) {
    EXPECT_TRUE(hearing.news().isEmpty());
    EXPECT_EQ(newsOf("Bestem toppunktet"), QStringList("Bestem toppunktet."));
    EXPECT_TRUE(hearing.news().isEmpty());
}

TEST_F(HearingOfALabel, TellsATextAgainAfterAnother) {
    EXPECT_EQ(newsOf("Bestem toppunktet"), QStringList("Bestem toppunktet."));
    EXPECT_EQ(newsOf("Find rødderne"), QStringList("Find rødderne."));
}

TEST_F(HearingOfALabel, TellsATextAgainThatWasHidden) {
    label.hide();
    EXPECT_TRUE(hearing.news().isEmpty());
    label.show();
    EXPECT_EQ(hearing.news(), QStringList("Find rødderne."));
}

TEST_F(HearingOfALabel, TellsNoTextAgainThatWasCovered) {
    cover.show();
    EXPECT_TRUE(hearing.news().isEmpty());
    cover.hide();
    EXPECT_TRUE(hearing.news().isEmpty());
}

}  // namespace
}  // namespace tavrune
