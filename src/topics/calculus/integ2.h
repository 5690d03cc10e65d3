#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/calculus/integ2_exercise.h"

namespace tavrune {

namespace Ui {
class Integ2;
}

/// The definite integral of a function in two linear pieces, with its graph.
class Integ2 : public ExerciseForm {
    Q_OBJECT

public:
    explicit Integ2(Draws& draws);
    ~Integ2() override;

    [[nodiscard]] const Integ2State& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void showTask();
    /// The task as a whole, which is laid out label by label.
    void nameTask();
    void layOutHelp();
    void showWorkedSolution();

    // The names of the labels of a piece begin with its prefix: "segment1Slope", "workedSegment1Integrand".
    [[nodiscard]] Label* label(const QString& prefix, const char* name) const;
    void showPiece(const QString& prefix, const Integ2Piece& shown) const;
    void fillHelp(const QString& prefix, const Integ2Piece& worked) const;
    void layOutWorkedPiece(const QString& prefix) const;

    std::unique_ptr<Ui::Integ2> ui_;
    Integ2State state_;
};

}  // namespace tavrune
