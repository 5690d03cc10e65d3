#pragma once

#include <memory>
#include <vector>

#include "controls/option_group.h"
#include "shell/exercise_form.h"
#include "topics/polynomial/rogt_exercise.h"

namespace tavrune {

namespace Ui {
class Rogt;
}

/// The number of roots of a polynomial, the roots and the vertex, judged in one go. It has no worked
/// solution.
class Rogt : public ExerciseForm {
    Q_OBJECT

public:
    explicit Rogt(Draws& draws);
    ~Rogt() override;

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;

private:
    /// The boxes that the chosen number of roots asks for.
    [[nodiscard]] std::vector<AnswerBox*> chosenRootBoxes() const;
    void colourRightOption();

    void askForTwoRoots();
    void askForADoubleRoot();
    void askForTheVertexOnly();
    void hideRootFields();
    void beginEntry();
    /// It takes the second of two roots, or the double one.
    void nameSecondBox(RootCount count);

    void drawCurve();
    /// Where the axis is met, as the chosen number of roots has it.
    void drawTypedRoots();
    void focusOnWrongBox();

    std::unique_ptr<Ui::Rogt> ui_;
    RogtState state_;
    OptionGroup<RootCount> options_;
};

}  // namespace tavrune
