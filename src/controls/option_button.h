#pragma once

#include <string>

#include <QRadioButton>

#include "controls/control.h"

namespace tavrune {

/// One choice of several. Its back colour is the system's button face until it is coloured as right.
/// Choosing it by code does not run what a click runs.
class OptionButton : public QRadioButton, public Control {
    Q_OBJECT

public:
    explicit OptionButton(QWidget* parent = nullptr);

    [[nodiscard]] std::string caption() const { return text().toStdString(); }

    /// Sets or clears the choice; unlike a click, clearing leaves the group without any.
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
    /// By the arrow keys: the option before or after this one, round the group, with all that a click runs.
    void chooseNeighbour(int step);
};

}  // namespace tavrune
