#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/form_driver.h"
#include "support/scripted_draws.h"
#include "support/strokes.h"

namespace tavrune::test {

using Strokes = std::vector<Stroke>;
/// Box to text, in the order of the boxes.
using Typed = std::map<std::string, std::string>;

inline const QColor kSumGreenAsSeen(0, 190, 0);
/// The boxes of the given functions, and the one of the sum.
inline const StrokesIn kFunction{{0, 0, 10, 10}};
inline const StrokesIn kSum{{0, 0, 10, 20}};

/// A mark at a quantity and a price.
[[nodiscard]] inline Strokes mark(double q, double p) {
    Strokes strokes;
    for (double t = -0.15; t <= 0.15; t += 0.05) {
        strokes.push_back(kFunction.line(q - 0.15, 10 - p + t, q + 0.15, 10 - p + t, kRed));
    }
    EXPECT_EQ(strokes.size(), 6U);
    return strokes;
}

[[nodiscard]] inline QRectF whereIs(const FormDriver& f, const std::string& box) {
    const Control& control = f.find<GraphBox>(box);
    return control.place();
}

/// A form on which two functions are added by their prices, of straight lines or of two pieces each.
template <class Function>
class VerticalForm : public testing::Test {
protected:
    VerticalForm(PageName page, std::string right, std::size_t pieces)
        : page_(page), right_(std::move(right)), pieces_(pieces) {}

    /// Opens the form with the two functions drawn.
    FormDriver& open(const Function& function1, const Function& function2) {
        draws.append(scriptOf(function1, function2));
        form = std::make_unique<FormDriver>(page_, draws);
        return *form;
    }

    void nextExercise(const Function& function1, const Function& function2) {
        draws.append(scriptOf(function1, function2));
        form->click("newExercise");
    }

    void fill(const Typed& typed) const { form->fill(typed); }

    void answer(const Typed& typed) const {
        fill(typed);
        form->click("ok");
    }

    [[nodiscard]] const Strokes& strokes(const std::string& box) const {
        return form->find<GraphBox>(box).strokes();
    }

    /// What stands on the box of a given function behind its pieces.
    [[nodiscard]] Strokes drawnLater(const std::string& box) const {
        return strokesFrom(form->find<GraphBox>(box), pieces_);
    }

    [[nodiscard]] std::set<std::string> redBoxes() const { return form->redBoxes(); }

    [[nodiscard]] bool isRight() const { return form->isShown(right_); }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;

private:
    PageName page_;
    std::string right_;
    std::size_t pieces_;
};

}  // namespace tavrune::test
