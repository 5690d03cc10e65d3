#pragma once

#include <memory>
#include <vector>

#include "topics/addition/laddi2_exercise.h"
#include "topics/addition/vertical_form.h"

namespace tavrune {

namespace Ui {
class Laddi2;
}

/// Two functions with a kink each, to be added by their prices.
class Laddi2 : public VerticalForm {
    Q_OBJECT

public:
    explicit Laddi2(Draws& draws);
    ~Laddi2() override;

    [[nodiscard]] const Laddi2State& state() const { return state_; }

protected:
    void newExercise() override;
    void closeHelp() override;
    [[nodiscard]] VerticalSum sum() const override { return state_.sum; }
    [[nodiscard]] Judgement judged(const std::vector<double>& typed) const override {
        return tavrune::judge(state_, typed);
    }

private:
    void showTask();
    /// Shows the two parts of a given function. The names of its controls begin with `name`.
    void tellFunction(const QString& name, const KinkedFunction& function);
    void showRows();
    void showIntervals();
    void showSum();

    std::unique_ptr<Ui::Laddi2> ui_;
    /// Where the last step of the help shows the segments.
    std::vector<Label*> segmentResults_;
    Laddi2State state_;
};

}  // namespace tavrune
