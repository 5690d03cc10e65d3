#pragma once

#include <memory>

#include "controls/option_group.h"
#include "shell/exercise_form.h"
#include "topics/polynomial/roedder_exercise.h"

namespace tavrune {

namespace Ui {
class Roedder;
}

/// How many roots a polynomial of the second degree has, and which.
class Roedder : public ExerciseForm {
    Q_OBJECT

public:
    explicit Roedder(Draws& draws);
    ~Roedder() override;

    [[nodiscard]] const RoedderState& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void drawCurve();
    void drawTick(double root);

    /// Boxes, their labels, verdict and "&Giv svaret".
    void hideAnswer();
    /// It takes the second of two roots, or the double one.
    void nameSecondBox(RootCount count);
    void askForTwoRoots();
    void askForDoubleRoot();
    void askForNoRoots();
    void colourRightOption();

    /// Shows the words and lines that the worked solution has for this count.
    void showWorked(RootCount count);
    void fillWorkedTwoRoots();
    void fillWorkedDoubleRoot();
    void clearWorkedSolution();
    void showDiscriminant();
    void showRootCount();
    void showRoots();

    std::unique_ptr<Ui::Roedder> ui_;
    RoedderState state_;
    OptionGroup<RootCount> options_;
};

}  // namespace tavrune
