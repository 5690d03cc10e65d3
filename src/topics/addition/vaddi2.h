#pragma once

#include <array>
#include <memory>

#include "shell/exercise_form.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/answer_rows.h"
#include "topics/addition/vaddi2_exercise.h"

namespace tavrune {

namespace Ui {
class Vaddi2;
}

/// Three straight functions, to be added by their quantities.
class Vaddi2 : public ExerciseForm {
    Q_OBJECT

public:
    explicit Vaddi2(Draws& draws);
    ~Vaddi2() override;

    [[nodiscard]] const Vaddi2State& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    /// What the form has for each of the functions.
    struct Function {
        FunctionLabels labels;
        FramedGraph framed;
        HelpColumn quantities;
        QColor band;
    };

    void showRows();
    void showTask();
    void drawGraphs();
    void drawTypedSum();
    void drawSum(double lastQ);
    void fillTable();
    void fillAnswer();
    void showPrices();
    void showQuantities();
    void showSum();
    void drawStack(std::size_t row);
    void closePanel();

    std::unique_ptr<Ui::Vaddi2> ui_;
    AnswerRows rows_;
    HelpTable table_;
    std::array<Function, Vaddi2State::kFunctions> functions_;
    Vaddi2State state_;
};

}  // namespace tavrune
