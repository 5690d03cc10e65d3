#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/basics/konvert_exercise.h"

namespace tavrune {

namespace Ui {
class Konvert;
}

/// A linear function of one unit, rewritten in another; the answer is a slope and an intercept.
class Konvert : public ExerciseForm {
    Q_OBJECT

public:
    explicit Konvert(Draws& draws);
    ~Konvert() override;

    [[nodiscard]] const KonvertState& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void blankWorkedSolution();
    void drawTicks();
    void drawFunction(double slope, double intercept, const QColor& colour);
    void drawExample();
    void drawExampleBars();
    void drawBarOver(const Label* label);
    void showWorkedSolution();
    void layOutWorkedSolution();

    std::unique_ptr<Ui::Konvert> ui_;
    KonvertState state_;
};

}  // namespace tavrune
