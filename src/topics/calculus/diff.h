#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/calculus/diff_exercise.h"

namespace tavrune {

namespace Ui {
class Diff;
}

/// The derivative of a quadratic or a cubic at one point, with tangents.
class Diff : public ExerciseForm {
    Q_OBJECT

public:
    explicit Diff(Draws& draws);
    ~Diff() override;

    [[nodiscard]] const DiffState& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void showTask();
    void drawCurve();
    void drawRightTangent();
    void drawTangent(double slope, double reach, const QColor& colour);
    void showDerivative();
    void showDerivativeAtPoint();

    std::unique_ptr<Ui::Diff> ui_;
    DiffState state_;
};

}  // namespace tavrune
