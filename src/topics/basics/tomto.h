#pragma once

#include <array>
#include <memory>

#include "controls/fraction.h"
#include "controls/option_group.h"
#include "shell/exercise_form.h"
#include "topics/basics/tomto_exercise.h"

namespace tavrune {

namespace Ui {
class Tomto;
}

/// Two lines in P and Q: how they lie to each other, and where they cross.
class Tomto : public ExerciseForm {
    Q_OBJECT

public:
    explicit Tomto(Draws& draws);
    ~Tomto() override;

    [[nodiscard]] const TomtoState& state() const { return state_; }

protected:
    void opened() override;
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;

private:
    void prepare();
    void showTask();
    void askForCrossing();
    void hideCrossing();
    void setRange();
    void showAxisMiddles(float upperEnd);
    void drawLines(const QColor& colour);
    void showWorkedExplicit();
    void showWorkedImplicit();
    void closeExplicitHelp();
    void closeImplicitHelp();
    /// Q in the worked solution of implicit lines.
    [[nodiscard]] Fraction implicitQuantity() const;

    std::unique_ptr<Ui::Tomto> ui_;
    TomtoState state_;
    OptionGroup<Relation> options_;
};

}  // namespace tavrune
