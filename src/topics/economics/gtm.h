#pragma once

#include <memory>
#include <vector>

#include <QList>

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
    void opened() override;
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;

private:
    using Boxes = GtmTerms<AnswerBox*>;

    /// A step of the help, from one function to another.
    struct Step {
        Button* button = nullptr;
        /// Where its formulas are shown.
        Panel* box = nullptr;
        /// The lines of its way in the diagram.
        QList<LineControl*> way;
    };

    /// What the page has for a function.
    struct Function {
        Boxes boxes;
        /// Its name in the diagram.
        Label* name = nullptr;
        /// The help where it is given, with the steps to the other two.
        Panel* help = nullptr;
        std::vector<Step> steps;
    };

    /// Finds what is called after the function, and has each "Vis" show its step.
    [[nodiscard]] Function bind(GtmFunction function);
    [[nodiscard]] Boxes boxesOf(GtmFunction function) const;
    /// The lines of the diagram whose names begin so, as they stand in the design.
    [[nodiscard]] QList<LineControl*> linesOf(const QString& prefix) const;

    void prepare();
    void showTask(GtmReach reach);
    void draw(const GtmCurve& curve, const QColor& colour);
    void hideSteps();
    void closeHelp() override;
    void closeHelpAndBlackenNames();

    std::unique_ptr<Ui::Gtm> ui_;
    GtmState state_;
    GtmEach<Function> functions_;
    /// Those of all functions, in their order.
    std::vector<AnswerBox*> boxes_;
};

}  // namespace tavrune
