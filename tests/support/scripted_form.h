#pragma once

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graph/graph_box.h"
#include "support/expect.h"
#include "support/form_driver.h"
#include "support/scripted_draws.h"
#include "support/strokes.h"

namespace tavrune::test {

/// Typed texts that are no answer: out of every range, no number, and far too long.
inline const std::vector<std::string> kRoughTexts{"1e308", "-1e999", "æ;", std::string(100'000, '9')};

/// A form of which every draw is written down. `Told` is what a test tells of an exercise.
template <class... Told>
class ScriptedForm : public testing::Test {
protected:
    using ScriptOf = Script (*)(Told...);

    /// `scriptOf` gives the draws of an exercise out of what is told of it.
    ScriptedForm(PageName page, ScriptOf scriptOf) : page_(page), scriptOf_(scriptOf) {}

    /// Has the next exercise drawn so.
    void script(Told... told) { draws.append(scriptOf_(told...)); }

    /// Opens the form anew, with an exercise.
    FormDriver& open(Told... told) { return openBy(scriptOf_(told...)); }

    /// Presses "&Ny opgave" for another one.
    void next(Told... told) {
        script(told...);
        form->click("newExercise");
    }

    FormDriver& openBy(const Script& script) {
        draws.append(script);
        form = std::make_unique<FormDriver>(page_, draws);
        return *form;
    }

    [[nodiscard]] GraphBox& graph(const std::string& name = "graph") const {
        return form->find<GraphBox>(name);
    }
    [[nodiscard]] const std::vector<Stroke>& strokes(const std::string& name = "graph") const {
        return graph(name).strokes();
    }

    [[nodiscard]] bool isRight() const { return form->verdict() == "RIGTIGT"; }
    [[nodiscard]] bool isWrong() const { return form->verdict() == "FORKERT"; }
    [[nodiscard]] QColor colour(const std::string& box) const { return form->box(box).backColour(); }
    [[nodiscard]] std::set<std::string> redBoxes() const { return form->redBoxes(); }

    /// What stands in some boxes, in the order asked.
    template <class Names>
    [[nodiscard]] std::vector<std::string> contentsOf(const Names& boxes) const {
        std::vector<std::string> texts;
        for (const auto& box : boxes) {
            texts.push_back(form->box(box).content());
        }
        return texts;
    }

    /// The captions of some labels, one after the other.
    template <class Names = std::initializer_list<const char*>>
    [[nodiscard]] std::string joined(const Names& labels, const std::string& between = "") const {
        std::string text;
        for (const auto& label : labels) {
            text += form->caption(label) + between;
        }
        return text;
    }

    /// Those of some controls that are shown, in the order asked.
    template <class Names = std::initializer_list<const char*>>
    [[nodiscard]] std::vector<std::string> shownOf(const Names& names) const {
        std::vector<std::string> shown;
        for (const auto& name : names) {
            if (form->isShown(name)) {
                shown.emplace_back(name);
            }
        }
        return shown;
    }

    /// From where the focus stands, Enter by Enter, until it is no longer in a box.
    [[nodiscard]] std::vector<std::string> walkByEnter() const {
        constexpr std::size_t kLongest = 60;
        std::vector<std::string> walk{form->focus()};
        while (form->isFocusInABox() && walk.size() < kLongest) {
            form->press(walk.back(), Qt::Key_Return);
            walk.push_back(form->focus());
        }
        return walk;
    }

    ScriptedDraws draws;
    std::unique_ptr<FormDriver> form;

private:
    PageName page_;
    ScriptOf scriptOf_;
};

}  // namespace tavrune::test
