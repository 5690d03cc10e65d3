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
    /// Gives the focus to the option before or after this one, round the group. What it stands for is not
    /// chosen: choosing may move the focus on before it has been heard.
    void focusOnNeighbour(int step);
};

}  // namespace tavrune
