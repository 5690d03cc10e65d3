#pragma once

#include <memory>
#include <span>

#include "controls/fraction.h"
#include "graph/graph_box.h"
#include "shell/exercise_form.h"
#include "topics/basics/lininter_exercise.h"

namespace tavrune {

namespace Ui {
class Lininter;
}

/// Interpolation and extrapolation on the line through two points; the answer is one coordinate.
class Lininter : public ExerciseForm {
    Q_OBJECT

public:
    explicit Lininter(Draws& draws);
    ~Lininter() override;

    [[nodiscard]] const LininterState& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    /// Where the help works out one coordinate.
    struct Solution {
        /// The slope, or its inverse.
        Fraction fraction;
        Label* ratio;
        Label* result;
        /// The "Vis" that uncovers it.
        Button* button;
    };

    /// That of the coordinate asked for.
    [[nodiscard]] Solution solution() const;

    void showTask();
    void drawPoints();
    void drawSolution();
    void drawArrowheads(Occasion occasion);
    void drawFigure(Meaning meaning, std::span<const Segment> segments, const QColor& colour);
    /// Each a line of its own, outside a figure.
    void draw(std::span<const Segment> segments, const QColor& colour);
    void showPriceSolution();
    void showQuantitySolution();

    std::unique_ptr<Ui::Lininter> ui_;
    LininterState state_;
};

}  // namespace tavrune
