#pragma once

#include <array>
#include <memory>
#include <vector>

#include "shell/exercise_form.h"
#include "topics/economics/afsaet_exercise.h"

namespace tavrune {

class LineControl;
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
    /// What a "Vis" shows: a text, in some steps behind a fraction in a box of their own.
    struct Step {
        Button* vis;
        Label* text;
        Panel* box = nullptr;
        Label* numerator = nullptr;
        LineControl* bar = nullptr;
        Label* denominator = nullptr;
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

    [[nodiscard]] std::array<HelpPanel, kAfsaetHelps> helpPanels() const;
    [[nodiscard]] std::array<AnswerBox*, 4> answerBoxes() const;
    void drawLine(const AfsaetAnswer& line, const QColor& colour);
    void showStep(const HelpPanel& help, std::size_t number);
    void closeHelp(const HelpPanel& help);

    std::unique_ptr<Ui::Afsaet> ui_;
    std::array<HelpPanel, kAfsaetHelps> helps_;
    AfsaetState state_;
};

}  // namespace tavrune
