#pragma once

#include <string_view>

#include "controls/label.h"
#include "controls/line_control.h"

namespace tavrune {

/// A numerator above a bar above a denominator, all three as wide as the wider text. They are controls of a
/// designer file, which decides at what height they are.
class Fraction {
public:
    Fraction(Label* numerator, LineControl* bar, Label* denominator);

    /// Returns the fraction of `slopeNumerator`, `slopeBar` and `slopeDenominator`, for the prefix "slope".
    /// Precondition: all three are on the page.
    [[nodiscard]] static Fraction of(const QWidget& page, const QString& prefix);

    /// Sets both texts. The left edge stays where it is.
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
