#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/calculus/integ_exercise.h"

namespace tavrune {

namespace Ui {
class Integ;
}

/// The definite integral of a linear or second-degree function, with its curve and the area.
class Integ : public ExerciseForm {
    Q_OBJECT

public:
    explicit Integ(Draws& draws);
    ~Integ() override;

    [[nodiscard]] const IntegState& state() const { return state_; }

protected:
    void loadStep() override;
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void drawAxes();
    void writeTexts();
    /// Ends where p is larger than this.
    void drawCurve(double largest);
    void hatchArea();
    void layOutHelp();
    void uncover();

    std::unique_ptr<Ui::Integ> ui_;
    IntegState state_;
};

}  // namespace tavrune
