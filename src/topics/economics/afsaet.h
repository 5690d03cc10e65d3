#pragma once

#include <memory>
#include <vector>

#include "shell/exercise_form.h"
#include "topics/economics/afsaet_exercise.h"

namespace tavrune {

class Panel;

namespace Ui {
class Afsaet;
}

/// A linear demand function from two facts; the answer is its equation and its range.
class Afsaet : public ExerciseForm {
    Q_OBJECT

public:
    explicit Afsaet(Draws& draws);
    ~Afsaet() override;

    [[nodiscard]] const AfsaetState& state() const { return state_; }

protected:
    void newExercise() override;
    void judge() override;
    void giveAnswer() override;
    void help() override;

private:
    /// A step of a help panel.
    struct Step {
        AfsaetUnknown unknown;
        /// What its controls are called: "twoPointsWorkedSlope".
        QString name;
        Button* button;
        Label* text;
        /// Holds the text and a fraction before it; null where there is none.
        Panel* panel;

        /// What its button shows.
        [[nodiscard]] QWidget* shown() const;
    };

    struct HelpPanel {
        AfsaetHelp help;
        Panel* panel;
        Button* close;
        std::vector<Step> steps;
        /// Shown by the last step.
        Label* heading;
        Label* equation;
    };

    /// What is called `prefix` with the name of the unknown, and so on.
    [[nodiscard]] Step stepOf(const QString& prefix, AfsaetUnknown unknown) const;
    /// For each help one.
    [[nodiscard]] std::vector<HelpPanel> helpPanels() const;
    void drawLine(const AfsaetAnswer& line, const QColor& colour);
    void showStep(const HelpPanel& help, const Step& step);
    void closePanel(const HelpPanel& help);

    std::unique_ptr<Ui::Afsaet> ui_;
    /// In the order of an `AfsaetAnswer`.
    std::vector<AnswerBox*> boxes_;
    std::vector<HelpPanel> helps_;
    AfsaetState state_;
};

}  // namespace tavrune
