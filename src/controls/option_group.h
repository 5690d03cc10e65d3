#pragma once

#include <optional>
#include <vector>

#include "controls/option_button.h"

namespace tavrune {

/// The option buttons of one question, each with what it stands for.
template <class Value>
class OptionGroup {
public:
    struct Choice {
        OptionButton* option;
        Value value;
    };

    OptionGroup() = default;
    OptionGroup(std::initializer_list<Choice> choices) : choices_(choices) {}

    /// What the chosen option stands for; nothing as long as none is chosen.
    [[nodiscard]] std::optional<Value> chosen() const {
        for (const auto& [option, value] : choices_) {
            if (option->isChosen()) {
                return value;
            }
        }
        return std::nullopt;
    }

    /// By code, so that no click is run.
    void choose(Value value) const { optionFor(value)->setChosen(true); }
    void chooseNone() const {
        for (const auto& [option, value] : choices_) {
            option->setChosen(false);
        }
    }

    void colour(Value value, const QColor& colour) const { optionFor(value)->setBackColour(colour); }
    void resetColours() const {
        for (const auto& [option, value] : choices_) {
            option->resetBackColour();
        }
    }

private:
    std::vector<Choice> choices_;

    [[nodiscard]] OptionButton* optionFor(Value wanted) const {
        for (const auto& [option, value] : choices_) {
            if (value == wanted) {
                return option;
            }
        }
        return nullptr;
    }
};

}  // namespace tavrune
