#include "shell/hearing.h"

#include <gtest/gtest.h>

#include "controls/answer_box.h"
#include "controls/button.h"
#include "controls/label.h"
#include "graph/graph_box.h"
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

TEST_F(HearingOfALabel, EndsEachTextAsASentence) {
    for (const auto& [caption, told] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Bestem rod", "Bestem rod."},
                                                                    {"Bestem roden.", "Bestem roden."},
                                                                    {"Bestem toppen:", "Bestem toppen:"},
                                                                    {"Hvor er toppen?", "Hvor er toppen?"},
                                                                    {"Bestem begge,", "Bestem begge."},
                                                                    {"Bestem alle , ", "Bestem alle."}}) {
        EXPECT_EQ(newsOf(caption), QStringList(told));
    }
}

/// A label between 102 and 117, but for what may overlap, with fields on its right.
class AnswerRow : public testing::Test {
protected:
    /// Whether the caption is part of the task, with fields that have their places in this order.
    [[nodiscard]] static bool isTask(const char* caption, const std::vector<QRect>& fields,
                                     bool areShown = true) {
        QWidget design;
        design.resize(600, 300);
        Label label(&design);
        label.setGeometry(0, 100, 100, 20);
        label.setCaption(caption);
        for (const QRect& place : fields) {
            auto* const field = new AnswerBox(&design);
            field->setGeometry(place);
            field->setVisible(areShown);
        }
        design.show();
        return !Hearing(design).task().isEmpty();
    }
};

TEST_F(AnswerRow, LeavesTextsBesideAFieldToTheNameOfTheField) {
    EXPECT_FALSE(isTask("i alt", {{150, 100, 50, 20}}));
    EXPECT_FALSE(isTask("i alt", {{150, 84, 50, 20}}));
    EXPECT_TRUE(isTask("i alt", {{150, 83, 50, 20}})) << "above it";
    EXPECT_FALSE(isTask("i alt", {{150, 116, 50, 20}}));
    EXPECT_TRUE(isTask("i alt", {{150, 117, 50, 20}})) << "below it";
    EXPECT_TRUE(isTask("i alt", {{150, 100, 50, 20}}, false)) << "hidden";
}

TEST_F(AnswerRow, LeavesTextsWithNumbersToTheNamesOfFieldsSideBySide) {
    EXPECT_TRUE(isTask("3 i alt", {{150, 100, 50, 20}}));
    EXPECT_FALSE(isTask("3 i alt", {{150, 100, 50, 20}, {250, 100, 50, 20}}));
    EXPECT_FALSE(isTask("3 i alt", {{150, 100, 50, 20}, {250, 100, 50, 20}, {350, 100, 50, 20}}));
    // Fields of one column, one above the other.
    EXPECT_TRUE(isTask("3 i alt", {{150, 90, 50, 20}, {198, 110, 50, 20}}));
    EXPECT_FALSE(isTask("3 i alt", {{150, 90, 50, 20}, {199, 110, 50, 20}}));
    EXPECT_TRUE(isTask("3 i alt", {{198, 90, 50, 20}, {150, 110, 50, 20}}));
    EXPECT_FALSE(isTask("3 i alt", {{199, 90, 50, 20}, {150, 110, 50, 20}}));
}

class HearingOfAField : public testing::Test {
protected:
    HearingOfAField() {
        field.setAccessibleName("rod 1");
        field.setGeometry(0, 0, 60, 20);
        design.resize(200, 100);
        design.show();
        hearing.takeForSaid();
    }

    QStringList newsOf(const char* content) {
        field.setContent(content);
        return hearing.news();
    }

    QWidget design;
    AnswerBox field{&design};
    Hearing hearing{design};
};

TEST_F(HearingOfAField, TellsWhatHasComeIntoItAndNotThatItIsEmpty) {
    EXPECT_EQ(newsOf("5"), QStringList("rod 1: 5."));
    EXPECT_TRUE(hearing.news().isEmpty());
    EXPECT_TRUE(newsOf("").isEmpty());
    field.setContent("7");
    hearing.takeFieldsForSaid();
    EXPECT_TRUE(hearing.news().isEmpty()) << "typed";
}

TEST_F(HearingOfAField, TellsAFieldThatComesIntoSight) {
    field.hide();
    EXPECT_TRUE(newsOf("5").isEmpty());
    field.show();
    EXPECT_EQ(hearing.news(), QStringList("rod 1: 5."));
}

TEST_F(HearingOfAField, HasTheFilledFieldsInSightInTheTask) {
    field.setContent(" ");
    EXPECT_EQ(hearing.task(), "");
    field.setContent("5");
    EXPECT_EQ(hearing.task(), "rod 1: 5.");
    field.hide();
    EXPECT_EQ(hearing.task(), "");
}

class HearingOfAGraph : public testing::Test {
protected:
    HearingOfAGraph() {
        graph.setAccessibleName("grafen");
        graph.setGeometry(0, 0, 100, 100);
        graph.Scale(0, 10, 10, 0);
        design.resize(200, 100);
        design.show();
        hearing.takeForSaid();
    }

    /// What is new once another line stands there.
    QString newsOfALine() {
        ++lines;
        graph.Line(0, lines, 10, lines + 1, kRed);
        return hearing.news().join(' ');
    }

    int lines = 0;
    QWidget design;
    GraphBox graph{&design};
    Hearing hearing{design};
};

TEST_F(HearingOfAGraph, TellsWhatHasBeenDrawnOnIt) {
    const QString told = newsOfALine();
    EXPECT_TRUE(told.startsWith("Nyt på grafen. ")) << told.toStdString();
    hearing.takeFieldsForSaid();
    EXPECT_TRUE(hearing.news().isEmpty());
    const QString next = newsOfALine();
    EXPECT_TRUE(next.startsWith("Nyt på grafen. ")) << next.toStdString();
    EXPECT_NE(next, told);
    hearing.takeFieldsForSaid();
    // All once more, and a line.
    graph.Cls();
    graph.Line(0, 1, 10, 2, kRed);
    graph.Line(0, 2, 10, 3, kRed);
    EXPECT_TRUE(hearing.news().isEmpty());
}

TEST_F(HearingOfAGraph, TellsNothingOfAGraphThatIsHidden) {
    graph.hide();
    EXPECT_EQ(newsOfALine(), "");
    EXPECT_EQ(hearing.graphs(), "");
    graph.show();
    EXPECT_TRUE(hearing.graphs().startsWith("grafen. ")) << hearing.graphs().toStdString();
}

TEST_F(HearingOfAGraph, TellsNothingOfAHelpPanelThatIsDrawnOn) {
    const Button close(&graph);
    EXPECT_EQ(newsOfALine(), "");
    EXPECT_EQ(hearing.graphs(), "");
}

TEST_F(HearingOfAGraph, TellsNothingOfAGraphThatHasJustCome) {
    GraphBox another(&design);
    another.Line(0, 0, 100, 100);
    another.show();
    EXPECT_TRUE(hearing.news().isEmpty());
}

}  // namespace
}  // namespace tavrune
