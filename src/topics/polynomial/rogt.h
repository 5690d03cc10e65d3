#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "shell/exercise_form.h"
#include "topics/polynomial/rogt_exercise.h"

namespace tavrune {

class OptionButton;

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
    void loadStep() override;
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;

private:
    struct Choice {
        OptionButton* option;
        RootCount count;
    };

    [[nodiscard]] std::array<Choice, 3> choices() const;
    [[nodiscard]] std::optional<RootCount> chosen() const;
    /// The boxes that the chosen number of roots asks for.
    [[nodiscard]] std::vector<AnswerBox*> chosenRootBoxes() const;
    void resetOptionColours();
    void colourRightOption();

    void askForTwoRoots();
    void askForADoubleRoot();
    void askForTheVertexOnly();
    void hideRootFields();
    void beginEntry();

    void drawAxes();
    void drawCurve();
    [[nodiscard]] bool judgeRoots();
    [[nodiscard]] bool judgeVertex();
    void focusOnWrongBox();

    std::unique_ptr<Ui::Rogt> ui_;
    RogtState state_;
};

}  // namespace tavrune
