#include "controls/fraction.h"

#include "controls/text.h"

namespace tavrune {

Fraction::Fraction(Label* numerator, LineControl* bar, Label* denominator)
    : numerator_(numerator), bar_(bar), denominator_(denominator) {
    numerator_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    denominator_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    // Screen readers read the whole fraction at the numerator.
    denominator_->setDecorative(true);
}

Fraction Fraction::of(const QWidget& page, const QString& prefix) {
    return {page.findChild<Label*>(prefix + "Numerator"), page.findChild<LineControl*>(prefix + "Bar"),
            page.findChild<Label*>(prefix + "Denominator")};
}

void Fraction::setTexts(std::string_view numerator, std::string_view denominator) const {
    numerator_->setAutoSize(true);
    denominator_->setAutoSize(true);
    numerator_->setCaption(numerator);
    denominator_->setCaption(denominator);
    numerator_->setAccessibleName(
        QString("brøk: tæller %1, nævner %2").arg(fromUtf8(numerator), fromUtf8(denominator)));
    const bool numeratorIsWider = numerator_->place().width() > denominator_->place().width();
    Label* const wider = numeratorIsWider ? numerator_ : denominator_;
    Label* const narrower = numeratorIsWider ? denominator_ : numerator_;
    narrower->setAutoSize(false);
    narrower->setWidth(wider->place().width());
    setLeft(numerator_->place().left());
}

void Fraction::setLeft(double left) const {
    numerator_->setLeft(left);
    denominator_->setLeft(left);
    bar_->setLeft(left);
    bar_->setRightEnd(right());
}

void Fraction::setShown(bool shown) const {
    numerator_->setVisible(shown);
    bar_->setVisible(shown);
    denominator_->setVisible(shown);
}

}  // namespace tavrune
