#pragma once

#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/scripted_form.h"
#include "support/verdict.h"
#include "topics/addition/addition_frames.h"

namespace tavrune::test {

using Strokes = std::vector<Stroke>;
/// Box to text, in the order of the boxes.
using Typed = std::map<std::string, std::string>;

inline const QColor kSumGreenAsSeen(0, 190, 0);
/// The boxes of the given functions, and the one of the sum.
inline const StrokesIn kFunction{{0, 0, 10, 10}};
inline const StrokesIn kSum{{0, 0, 10, 20}};

/// A mark at a quantity and a price.
[[nodiscard]] inline Strokes mark(double q, double p) {
    Strokes strokes;
    for (double t = -0.15; t <= 0.15; t += 0.05) {
        strokes.push_back(kFunction.line(q - 0.15, 10 - p + t, q + 0.15, 10 - p + t, kRed));
    }
    EXPECT_EQ(strokes.size(), 6U);
    return strokes;
}

[[nodiscard]] inline QRectF whereIs(const FormDriver& f, const std::string& box) {
    const Control& control = f.find<GraphBox>(box);
    return control.place();
}

/// An answer with other texts in some boxes.
[[nodiscard]] inline Typed with(Typed typed, const Typed& others) {
    for (const auto& [box, text] : others) {
        typed[box] = text;
    }
    return typed;
}

/// What is typed into an exercise, and the boxes that turn red; where none does, it is right.
template <class Function>
struct JudgeRow {
    const char* name;
    Function function1, function2;
    Typed typed;
    std::set<std::string> red;
};

template <class Function>
void PrintTo(const JudgeRow<Function>& row, std::ostream* out) {
    *out << row.name;
}

/// A form on which two functions are added by their prices, of straight lines or of two pieces each.
template <class Function>
class VerticalForm : public ScriptedForm<const Function&, const Function&> {
protected:
    VerticalForm(PageName page, std::size_t pieces)
        : ScriptedForm<const Function&, const Function&>(page, scriptOf), pieces_(pieces) {}

    void fill(const Typed& typed) const { this->form->fill(typed); }

    void answer(const Typed& typed) const {
        fill(typed);
        this->form->click("ok");
    }

    /// What stands on the box of a given function behind its pieces.
    [[nodiscard]] Strokes drawnLater(const std::string& box) const {
        return strokesFrom(this->graph(box), pieces_);
    }

    /// The fixed texts that the forms of both levels have.
    void expectSharedTexts() const {
        expectTexts(
            *this->form,
            {{"task",
              "Adder de ovenstående linier lodret og skriv de nye forskrifter i rubrikkerne nederst."},
             {"segment1ZeroLessThanQuantity", "for          0<Q"},
             {"segment2LessThanQuantity", "<Q"},
             {"showIntervals", "Vis"},
             {"showFunctions", "Vis"},
             {"closeHelp", "&Luk"}});
        EXPECT_EQ(
            this->form->label("intervalsStepText").text().simplified().toStdString(),
            "Bestem definitionsintervallerne for de resulterende funktioner: Find vha. de opgivne "
            "definitionsmængder Q-værdierne til de opgivne funktioners endepunkter. Disse Q-værdier ordnes "
            "efter størrelse, og derved fremkommer de resulterende funktioners definitionsintervaller.");
    }

    /// The boxes of the given functions and of their sum lie on the ticks of their frames.
    void expectBoxesOnTheirTicks() const {
        struct Row {
            const char* frame;
            const char* box;
            double unitX, unitY, top, bottom;
        };
        for (const Row& row : {Row{"function1GraphFrame", "function1Graph", 280.5, 280.5, 0.2, 8.2},
                               Row{"function2GraphFrame", "function2Graph", 280.5, 280.5, 0.2, 8.2},
                               Row{"resultGraphFrame", "resultGraph", 285.64, 242.93, 1, 19.5}}) {
            const GraphBox& frame = this->graph(row.frame);
            const QRectF box = whereIs(*this->form, row.box);
            const QRectF around = whereIs(*this->form, row.frame);
            EXPECT_NEAR(box.left(), fromTwips(row.unitX), 0.5) << row.box;
            EXPECT_NEAR(box.right(), 9 * fromTwips(row.unitX), 0.75) << row.box;
            EXPECT_NEAR(box.top(), row.top * fromTwips(row.unitY), 0.5) << row.box;
            EXPECT_NEAR(box.bottom(), row.bottom * fromTwips(row.unitY), 0.7) << row.box;
            EXPECT_NEAR(around.width() / frame.scale().x2, fromTwips(row.unitX), 0.005) << row.frame;
            EXPECT_NEAR(around.height() / frame.scale().y2, fromTwips(row.unitY), 0.005) << row.frame;
        }
    }

    void expectJudged(const JudgeRow<Function>& row) {
        this->open(row.function1, row.function2);
        const std::string first = this->form->focus();
        answer(row.typed);
        const bool isRight = row.red.empty();
        isRight ? expectSolved(*this->form) : expectWrong(*this->form, first);
        EXPECT_EQ(this->redBoxes(), row.red);
        EXPECT_EQ(this->strokes("resultGraph").empty(), !isRight);
    }

    /// `other` is what a first and a second try have else than the answer, a box each.
    void expectTriesUntilItIsRight(const Typed& right,
                                   std::initializer_list<std::pair<const char*, const char*>> other) {
        for (const auto& [box, text] : other) {
            answer(with(right, {{box, text}}));
            EXPECT_EQ(this->redBoxes(), std::set<std::string>{box});
        }
        EXPECT_TRUE(this->form->isShown("wrong"));
        answer(right);
        EXPECT_TRUE(this->isRight());
        expectHidden(*this->form, {"wrong", "giveAnswer"});
        EXPECT_TRUE(this->redBoxes().empty());
    }

    /// Whatever is typed into every box, the answer to this exercise has this text in one of them.
    void expectAnyTypedTextTaken(const Function& function1, const Function& function2, const char* box,
                                 const char* given) {
        this->open(function1, function2);
        for (const std::string& typed : kRoughTexts) {
            for (AnswerBox* each : this->form->page().template findChildren<AnswerBox*>()) {
                each->setContent(typed);
            }
            this->form->click("ok", "giveAnswer");
            EXPECT_FALSE(this->form->page().grab().isNull());
            EXPECT_EQ(this->form->box(box).content(), given);
            this->next(function1, function2);
        }
    }

private:
    std::size_t pieces_;
};

/// Answers the exercise of a script wrongly, in one box, and has the answer given; types that into the same
/// exercise, drawn again, which it solves. What was given. `look` is called with each of the two.
template <class Look>
[[nodiscard]] Typed solveByGivenAnswer(const FormDriver& f, ScriptedDraws& draws, const Script& script,
                                       const char* wrongBox, const Look& look) {
    draws.append(script);
    f.button("newExercise").click();
    look();
    f.box(wrongBox).setContent("99");
    f.button("ok").click();
    EXPECT_TRUE(f.isShown("wrong"));
    f.button("giveAnswer").click();
    Typed given;
    for (const AnswerBox* box : f.page().findChildren<AnswerBox*>()) {
        given[nameOf(*box)] = box->content();
    }
    draws.append(script);
    f.button("newExercise").click();
    for (const auto& [box, content] : given) {
        if (f.isShown(box)) {
            f.box(box).setContent(content);
        }
    }
    f.button("ok").click();
    EXPECT_TRUE(f.isShown("right"));
    return given;
}

}  // namespace tavrune::test
