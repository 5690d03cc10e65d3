#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/basics/brok_exercise.h"

namespace tavrune {

namespace Ui {
class Brok;
}

/// The four operations on two fractions; the answer is a numerator over a denominator.
class Brok : public ExerciseForm {
    Q_OBJECT

public:
    explicit Brok(Draws& draws);
    ~Brok() override;

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void clearReduction();
    void showTask();
    void showReduction();
    void showWorkedSolution();

    std::unique_ptr<Ui::Brok> ui_;
    BrokState state_;
};

}  // namespace tavrune
