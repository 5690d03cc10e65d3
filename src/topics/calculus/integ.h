#pragma once

#include <memory>

#include "shell/exercise_form.h"
#include "topics/calculus/integ_exercise.h"

namespace tavrune {

namespace Ui {
class Integ;
}

/// The labels that show a sum, each a piece of it.
struct IntegRowLabels {
    Label* cubicTerm = nullptr;
    Label* cube = nullptr;
    Label* quadraticTerm = nullptr;
    Label* square = nullptr;
    Label* linearTerm = nullptr;

    /// Returns what is called `workedPrimitiveCubicTerm` and so on, for the prefix "workedPrimitive".
    /// Precondition: all five are on the page.
    [[nodiscard]] static IntegRowLabels of(const QWidget& page, const QString& prefix);

    void write(const IntegRow& row) const;
    /// Sets them side by side from `left` on. Returns the right edge.
    double layOut(double left) const;
};

/// The definite integral of a linear or second-degree function, with its curve and the area.
class Integ : public ExerciseForm {
    Q_OBJECT

public:
    explicit Integ(Draws& draws);
    ~Integ() override;

    [[nodiscard]] const IntegState& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;
    void closeHelp() override;

private:
    void showTask();
    void fillHelp();
    /// Draws the curve up to the first p that is larger than `largest`.
    void drawCurve(double largest);
    void hatchArea();
    void layOutHelp();
    void showWorkedSolution();

    std::unique_ptr<Ui::Integ> ui_;
    /// The sums of the help, as `IntegWorked` has them.
    struct {
        IntegRowLabels primitive;
        IntegRowLabels upperWithLetters;
        IntegRowLabels lowerWithLetters;
        IntegRowLabels upperWithNumbers;
        IntegRowLabels lowerWithNumbers;
    } rows_;
    IntegState state_;
};

}  // namespace tavrune
