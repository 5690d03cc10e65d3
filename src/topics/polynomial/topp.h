#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/polynomial/topp_exercise.h"

namespace tavrune {

namespace Ui {
class Topp;
}

/// The vertex of a second-degree polynomial, with its parabola.
class Topp : public ExerciseForm {
    Q_OBJECT

public:
    explicit Topp(Draws& draws);
    ~Topp() override;

    [[nodiscard]] const ToppState& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void showTask();
    void fillHelp();
    void drawCurve();
    void drawTypedVertex(double q, double p);
    void showWorkedSolution();

    std::unique_ptr<Ui::Topp> ui_;
    ToppState state_;
};

}  // namespace tavrune
