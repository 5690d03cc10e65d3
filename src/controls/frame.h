#pragma once

#include <QGroupBox>

#include "controls/control.h"

namespace tavrune {

/// A captioned frame round option buttons; those inside one frame exclude one another.
class Frame : public QGroupBox, public Control {
    Q_OBJECT

public:
    explicit Frame(QWidget* parent = nullptr);

    [[nodiscard]] std::string caption() const { return title().toStdString(); }
};

}  // namespace tavrune
