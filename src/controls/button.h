#pragma once

#include <string>

#include <QPushButton>

#include "controls/control.h"

namespace tavrune {

/// A command button. Enter and Space press it when it has the focus; Enter presses once, however long it is
/// held.
class Button : public QPushButton, public Control {
    Q_OBJECT

public:
    explicit Button(QWidget* parent = nullptr);

    [[nodiscard]] std::string caption() const { return text().toStdString(); }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;
};

}  // namespace tavrune
