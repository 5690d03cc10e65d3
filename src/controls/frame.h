#pragma once

#include <QGroupBox>

#include "controls/control.h"

namespace tavrune {

/// A frame with a caption round option buttons, of which one at a time can be chosen.
class Frame : public QGroupBox, public Control {
    Q_OBJECT

public:
    explicit Frame(QWidget* parent = nullptr);

    [[nodiscard]] std::string caption() const { return title().toStdString(); }
};

}  // namespace tavrune
