#pragma once

#include <vector>

#include "shell/exercise_form.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/answer_rows.h"
#include "topics/addition/vertical_model.h"

namespace tavrune {

/// What the vertical additions share: two given functions, each in its frame, the tall graph of their sum,
/// the rows in which it is typed, and how it is judged and given.
class VerticalForm : public ExerciseForm {
protected:
    VerticalForm(PageName name, Draws& draws) : ExerciseForm(name, draws) {}

    /// Fills the design area from a designer file and finds the graphs and the rows.
    template <class Ui>
    void setUp(Ui& ui) {
        ExerciseForm::setUp(ui);
        bindGraphsAndRows();
    }

    /// Returns the sum of the exercise.
    [[nodiscard]] virtual VerticalSum sum() const = 0;
    /// Returns what the exercise judges of the values typed in the `answerFields` of its sum.
    [[nodiscard]] virtual Judgement judged(const std::vector<double>& typed) const = 0;

    void judge() override;
    void giveAnswer() override;
    void help() override;

    /// Clears the graphs and draws the ticks of their frames.
    void clearGraphs();
    /// Blanks the rows and asks for the sum.
    void askForSum();
    /// Gives the focus to the slope of the first segment that is asked for.
    void focusOnFirstRow() { focusOn(firstBox()); }

    [[nodiscard]] const AnswerRows& rows() const { return rows_; }

private:
    void bindGraphsAndRows();
    /// Returns the slope of the first segment that is asked for.
    [[nodiscard]] AnswerBox* firstBox() const;

    FramedGraph function1_;
    FramedGraph function2_;
    FramedGraph result_;
    AnswerRows rows_;
};

}  // namespace tavrune
