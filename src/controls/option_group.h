#pragma once

#include <optional>
#include <vector>

#include "controls/option_button.h"

namespace tavrune {

/// The option buttons of one question, each with its value.
template <class Value>
class OptionGroup {
public:
    struct Choice {
        OptionButton* option;
        Value value;
    };

    OptionGroup() = default;
    OptionGroup(std::initializer_list<Choice> choices) : choices_(choices) {}

    /// Returns the value of the chosen option, or nothing if none is chosen.
    [[nodiscard]] std::optional<Value> chosen() const {
        for (const auto& [option, value] : choices_) {
            if (option->isChosen()) {
                return value;
            }
        }
        return std::nullopt;
    }

    /// Chooses an option without running what a click runs. Precondition: an option has this value.
    void choose(Value value) const { optionFor(value)->setChosen(true); }
    void chooseNone() const {
        for (const auto& [option, value] : choices_) {
            option->setChosen(false);
        }
    }

    /// Precondition: an option has this value.
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
