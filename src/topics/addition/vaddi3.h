#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/addition/answer_rows.h"
#include "topics/addition/vaddi3_exercise.h"

namespace tavrune {

namespace Ui {
class Vaddi3;
}

/// A function with a kink or a jump and a straight one, to be added by their quantities.
class Vaddi3 : public ExerciseForm {
    Q_OBJECT

public:
    explicit Vaddi3(Draws& draws);
    ~Vaddi3() override;

    [[nodiscard]] const Vaddi3State& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    [[nodiscard]] const HelpColumn& boxes(TableColumn column) const {
        return table_[static_cast<std::size_t>(column)];
    }
    void write(TableColumn column) const { writeColumn(boxes(column), state_.column(column)); }

    void bindEnter();
    void showTable();
    /// Names its boxes for screen readers: what a column holds depends on the exercise.
    void nameTable();
    void showTask();
    void showRows();
    void drawGraphs();
    void drawTypedPieces();
    void drawTypedJoins();
    void drawSum();
    void drawJoins();
    void fillTable();
    void fillAnswer();
    void drawEndSquares();
    void drawBands();
    void drawStacks();
    void showPrices();
    void showQuantities();
    void showSum();
    void focusOnTable();

    std::unique_ptr<Ui::Vaddi3> ui_;
    AnswerRows rows_;
    HelpTable table_;
    Vaddi3State state_;
};

}  // namespace tavrune
