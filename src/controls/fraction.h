#pragma once

#include <string_view>

#include "controls/label.h"
#include "controls/line_control.h"

namespace tavrune {

/// Two texts over each other with a bar between them, all three as wide as the wider text. It is made of
/// controls that stand in a designer file, where their heights come from.
class Fraction {
public:
    Fraction(Label* numerator, LineControl* bar, Label* denominator);

    /// What is called `slopeNumerator`, `slopeBar` and `slopeDenominator`, for the prefix "slope". All three
    /// must be on the page.
    [[nodiscard]] static Fraction of(const QWidget& page, const QString& prefix);

    /// Sets both texts; the fraction keeps its left edge.
    void setTexts(std::string_view numerator, std::string_view denominator) const;

    void setLeft(double left) const;
    [[nodiscard]] double left() const { return numerator_->place().left(); }
    [[nodiscard]] double right() const { return numerator_->place().right(); }
    [[nodiscard]] double width() const { return numerator_->place().width(); }

    void setShown(bool shown) const;

private:
    Label* numerator_;
    LineControl* bar_;
    Label* denominator_;
};

}  // namespace tavrune
