#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/basics/dlinie_exercise.h"

namespace tavrune {

namespace Ui {
class Dlinie;
}

/// A straight line from two facts; the answer is its slope and its intercept.
class Dlinie : public ExerciseForm {
    Q_OBJECT

public:
    explicit Dlinie(Draws& draws);
    ~Dlinie() override;

    [[nodiscard]] const DlinieState& state() const { return state_; }

protected:
    void opened() override;
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;

private:
    void ask(ZeroSlope zeroSlope);
    void drawLine(double slope, double intercept, const QColor& colour);

    void showSlopeOfTwoPoints();
    void showInterceptOfTwoPoints();
    void showInterceptOfPoint();
    void showInterceptOfXCross();
    void showSlopeOfBothCrosses();

    std::unique_ptr<Ui::Dlinie> ui_;
    DlinieState state_;
};

}  // namespace tavrune
