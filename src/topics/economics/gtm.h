#pragma once

#include <array>
#include <memory>

#include "controls/line_control.h"
#include "controls/panel.h"
#include "shell/exercise_form.h"
#include "topics/economics/gtm_exercise.h"

namespace tavrune {

namespace Ui {
class Gtm;
}

/// Average, total and marginal cost: one of the functions is given, the other two are asked for.
class Gtm : public ExerciseForm {
    Q_OBJECT

public:
    explicit Gtm(Draws& draws);
    ~Gtm() override;

protected:
    void firstTick() override;
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;

private:
    using Boxes = std::array<AnswerBox*, 3>;
    /// A way of the diagram: its two legs and its two barbs.
    using Way = std::array<LineControl*, 4>;

    /// What the help shows where a function is given.
    struct Guide {
        Label* name;
        std::array<const Way*, 2> ways;
        Panel* panel;
        Button* firstVis;
    };

    [[nodiscard]] const Boxes& boxesOf(GtmFunction function) const;
    [[nodiscard]] Guide guide() const;

    void bindSteps();
    void prepare();
    void showTask(GtmReach reach);
    void draw(const GtmCurve& curve, const QColor& colour);
    void hideSteps();
    void closeHelp();
    void closeHelpAndBlackenNames();

    std::unique_ptr<Ui::Gtm> ui_;
    GtmState state_;
    /// In the order of `GtmFunction`.
    std::array<Boxes, 3> boxes_;
    Way integrate_;
    Way differentiate_;
    Way divide_;
    Way multiply_;
};

}  // namespace tavrune
