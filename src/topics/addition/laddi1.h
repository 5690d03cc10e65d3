#pragma once

#include <memory>

#include "topics/addition/laddi1_exercise.h"
#include "topics/addition/vertical_form.h"

namespace tavrune {

namespace Ui {
class Laddi1;
}

/// Two straight functions, to be added by their prices.
class Laddi1 : public VerticalForm {
    Q_OBJECT

public:
    explicit Laddi1(Draws& draws);
    ~Laddi1() override;

    [[nodiscard]] const Laddi1State& state() const { return state_; }

protected:
    void newExercise() override;
    void closeHelp() override;
    [[nodiscard]] VerticalSum sum() const override { return sumOf(state_); }
    [[nodiscard]] Judgement judged(const std::vector<double>& typed) const override {
        return tavrune::judge(state_, typed);
    }

private:
    void showTask();
    void showRows();
    void showIntervals();
    void showSum();

    std::unique_ptr<Ui::Laddi1> ui_;
    Laddi1State state_;
};

}  // namespace tavrune
