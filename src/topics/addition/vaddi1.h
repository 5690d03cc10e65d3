#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/addition/addition_graphs.h"
#include "topics/addition/answer_rows.h"
#include "topics/addition/vaddi1_exercise.h"

namespace tavrune {

namespace Ui {
class Vaddi1;
}

/// Two straight functions, to be added by their quantities.
class Vaddi1 : public ExerciseForm {
    Q_OBJECT

public:
    explicit Vaddi1(Draws& draws);
    ~Vaddi1() override;

    [[nodiscard]] const Vaddi1State& state() const { return state_; }

protected:
    void opened() override;
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void showRows();
    void showTask();
    void drawGraphs();
    void drawTypedSum();
    void drawSum();
    void fillTable();
    void fillAnswer();
    void drawEndSquares(GraphBox& graph, const Vaddi1State::Column& quantities);
    void drawStack(std::size_t row);
    void showPrices();
    void showQuantities();
    void showSum();

    std::unique_ptr<Ui::Vaddi1> ui_;
    AnswerRows rows_;
    HelpTable table_;
    Vaddi1State state_;
};

}  // namespace tavrune
