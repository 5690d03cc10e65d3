#pragma once

#include <string>

#include <QRadioButton>

#include "controls/control.h"

namespace tavrune {

/// One choice of several. It has the colour of buttons until it is coloured as right.
class OptionButton : public QRadioButton, public Control {
    Q_OBJECT

public:
    explicit OptionButton(QWidget* parent = nullptr);

    [[nodiscard]] std::string caption() const { return text().toStdString(); }

    /// Chooses the option, or clears the choice so that no option is chosen. What a click runs is not run.
    void setChosen(bool chosen);
    [[nodiscard]] bool isChosen() const { return isChecked(); }

    void setBackColour(const QColor& colour);
    void resetBackColour();
    [[nodiscard]] QColor backColour() const { return palette().color(QPalette::Window); }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    /// Clicks the next option that is shown in the direction of `step`, -1 or 1; after the last comes the
    /// first.
    void chooseNeighbour(int step);
};

}  // namespace tavrune
