#include "topics/economics/formula_rows.h"

#include "controls/fraction.h"
#include "controls/label.h"
#include "controls/line_control.h"

namespace tavrune {
namespace {

constexpr double kExponentSize = 8;
constexpr double kExponentRise = 5;
constexpr double kIntegralSize = 18;
constexpr double kIntegralRise = 5;
constexpr double kIntegralLean = 3;
// Of the three pieces of a fraction, from the top of the row.
constexpr double kNumerator = -6;
constexpr double kBar = 7;
constexpr double kDenominator = 8;

/// Labels of one formula, made from left to right.
class Row {
public:
    Row(Panel& box, const FormulaPlace& place)
        : box_(box), top_(place.top), exponentOffset_(place.exponentOffset) {}

    void add(const FormulaPiece& piece) {
        const double left = next_;
        switch (piece.kind) {
            case FormulaPiece::Kind::Text:
                next_ = addLabel(piece.text, left, top_)->place().right();
                break;
            case FormulaPiece::Kind::IntegralSign: {
                Label* const sign = addLabel(piece.text, left, top_ - kIntegralRise, kIntegralSize);
                sign->setSerif(true);
                next_ = sign->place().right();
                // The sign leans over what follows.
                sign->setAutoSize(false);
                sign->setWidth(sign->place().width() + kIntegralLean);
                break;
            }
            case FormulaPiece::Kind::Fraction:
                next_ = addFraction(piece.text, left);
                break;
        }
        if (!piece.exponent.empty()) {
            addLabel(piece.exponent, left + exponentOffset_, top_ - kExponentRise, kExponentSize);
        }
    }

private:
    Panel& box_;
    double top_;
    double exponentOffset_;
    double next_ = 0;

    Label* addLabel(const std::string& text, double left, double top, double size = kDesignTextSize) {
        auto* const label = new Label(&box_);
        label->setPlace(QRectF(left, top, 0, 0));
        label->setTextSize(size);
        label->setZoom(box_.zoom());
        label->setCaption(text);
        // Last, so that it is measured once.
        label->setAutoSize(true);
        label->show();
        return label;
    }

    /// One over `denominator`. Gives its right edge.
    double addFraction(const std::string& denominator, double left) {
        auto* const bar = new LineControl(&box_);
        bar->setPlace(QRectF(left, top_ + kBar, 1, 1));
        bar->setZoom(box_.zoom());
        bar->show();
        Label* const numerator = addLabel("", left, top_ + kNumerator);
        const Fraction fraction(numerator, bar, addLabel("", left, top_ + kDenominator));
        fraction.setTexts("1", denominator);
        return fraction.right();
    }
};

}  // namespace

void showFormulas(Panel& box, const std::vector<Formula>& formulas, std::span<const FormulaPlace> places) {
    Q_ASSERT(formulas.size() == places.size());
    qDeleteAll(box.findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
    for (std::size_t i = 0; i < formulas.size(); ++i) {
        Row row(box, places[i]);
        for (const FormulaPiece& piece : formulas[i]) {
            row.add(piece);
        }
    }
}

}  // namespace tavrune
