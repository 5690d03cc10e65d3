#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/calculus/integ2_exercise.h"

namespace tavrune {

class GraphBox;

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
    /// The task as a whole, which is laid out piece by piece.
    void nameTask();
    void fillHelp();
    void layOutHelp();
    bool plotPieces(GraphBox& graph) const;
    void hatchPieces(GraphBox& graph, const QColor& first, const QColor& second) const;
    void uncover();

    std::unique_ptr<Ui::Integ2> ui_;
    Integ2State state_;
};

}  // namespace tavrune
