// What is said on every form, beside what a screen reader finds by itself.

#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

#include "conformance/form_suite.h"
#include "controls/accessible_controls.h"
#include "controls/answer_box.h"
#include "controls/label.h"
#include "controls/panel.h"
#include "controls/spoken.h"
#include "controls/voice.h"
#include "graph/graph_box.h"

namespace tavrune {
namespace {

using test::FormDriver;

QStringList numbersIn(const QString& text) {
    static const QRegularExpression number("\\d+([.,]\\d+)?");
    QStringList found;
    for (auto match = number.globalMatch(text); match.hasNext();) {
        found << match.next().captured();
    }
    return found;
}

/// Of the labels that can be seen on the page itself, those that are not at an axis.
QList<Label*> taskLabels(const Page& page) {
    const auto* const design = page.findChild<Button*>("newExercise")->parentWidget();
    QList<Label*> labels = design->findChildren<Label*>(QString(), Qt::FindDirectChildrenOnly);
    labels.removeIf([](const Label* label) {
        const QString name = label->objectName();
        return !isSeen(*label) || label->isVerdict() || name.contains("Mark") || name == "tableHead";
    });
    return labels;
}

class EveryFormIsHeard : public test::FormSuite {
protected:
    void SetUp() override { said_ = std::make_unique<QSignalSpy>(&Voice::instance(), &Voice::said); }

    /// All that was said since the last call, an utterance each.
    [[nodiscard]] QStringList heard() {
        QStringList words;
        for (const QList<QVariant>& one : *said_) {
            words << one.front().toString();
        }
        said_->clear();
        return words;
    }

    /// The first option of the form; empty if it has none.
    [[nodiscard]] static std::string option(const FormDriver& form) {
        const auto options = test::inSight<OptionButton>(form.page());
        return options.empty() ? "" : test::nameOf(*options.front());
    }

private:
    std::unique_ptr<QSignalSpy> said_;
};

INSTANTIATE_TEST_SUITE_P(Forms, EveryFormIsHeard, testing::ValuesIn(test::allForms()), test::asciiName);

TEST_P(EveryFormIsHeard, SaysItsTaskWithAllItsNumbersInOneOnOpeningAtTheNextExerciseAndOnDemand) {
    const FormDriver form = open(11);
    for (int exercise = 0; exercise < 6 && !hasFailed(); ++exercise) {
        const QStringList said = heard();
        ASSERT_EQ(said.size(), 1);
        for (const Label* label : taskLabels(form.page())) {
            for (const QString& number : numbersIn(label->text())) {
                EXPECT_TRUE(said.front().contains(number))
                    << label->objectName().toStdString() << " " << number.toStdString() << " in "
                    << said.front().toStdString();
            }
        }
        QTest::keyClick(&form.page(), Qt::Key_F2);
        EXPECT_EQ(heard(), said);
        QTest::keyClick(&form.page(), Qt::Key_F2);
        const QStringList graphs = heard();
        ASSERT_EQ(graphs.size(), 1);
        const bool hasGraph = form.page().findChild<GraphBox*>() != nullptr;
        EXPECT_EQ(graphs.front().contains("Vandret akse fra"), hasGraph) << graphs.front().toStdString();
        form.click("newExercise");
    }
}

TEST_P(EveryFormIsHeard, SaysEachWrongVerdictTheTenthTimeToo) {
    const FormDriver form = open(12);
    form.answerWrongly(option(form));
    for (int tried = 0; tried < 10 && form.isShown("ok"); ++tried) {
        static_cast<void>(heard());
        form.click("ok");
        const QStringList said = heard();
        ASSERT_EQ(said.size(), 1) << tried;
        EXPECT_TRUE(said.front().startsWith("FORKERT")) << said.front().toStdString();
        for (const AnswerBox* box : form.page().findChildren<AnswerBox*>()) {
            if (box->isVisible() && box->isMarked()) {
                EXPECT_TRUE(said.front().contains(box->accessibleName()));
            }
        }
    }
}

TEST_P(EveryFormIsHeard, SaysTheGivenAnswerFieldByField) {
    const FormDriver form = open(13);
    form.answerWrongly(option(form));
    if (!form.isShown("giveAnswer")) {
        return;
    }
    static_cast<void>(heard());
    form.click("giveAnswer");
    if (hasFailed()) {
        return;
    }
    const QString said = heard().join(' ');
    for (const AnswerBox* box : form.page().findChildren<AnswerBox*>()) {
        if (isSeen(*box) && !box->text().trimmed().isEmpty() &&
            !box->accessibleName().endsWith("hjælpeskemaet")) {
            EXPECT_TRUE(said.contains(box->accessibleName() + ": " + spoken(box->text())))
                << said.toStdString();
        }
    }
}

TEST_P(EveryFormIsHeard, SaysOfAnOpenHelpWhatEachStepReveals) {
    const FormDriver form = open(14);
    static_cast<void>(heard());
    form.click("help");
    static_cast<void>(form.answerMessage());
    QStringList told;
    const auto collect = [&] {
        const QStringList now = heard();
        EXPECT_LE(now.size(), 1);
        for (const QString& utterance : now) {
            for (const QString& before : told) {
                EXPECT_FALSE(utterance.contains(before)) << "again: " << before.toStdString();
            }
        }
        told << now;
        return !now.isEmpty();
    };
    collect();
    std::set<const Button*> pressed;
    while (Button* const step = form.nextStep(pressed)) {
        pressed.insert(step);
        step->click();
        EXPECT_TRUE(collect()) << test::nameOf(*step) << " reveals nothing";
    }
}

}  // namespace
}  // namespace tavrune
