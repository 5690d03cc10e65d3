#pragma once

#include <QWidget>

#include "shell/zoom.h"

namespace tavrune {

/// The about box: a window of its own with no buttons, in the middle of the screen. It stays when the start
/// page gives way to a topic, and the program lasts as long as it is open.
class FrmAbout : public QWidget {
    Q_OBJECT

public:
    FrmAbout();

    void setZoom(ZoomStep step);

private:
    QSize designSize_;
};

/// Where a box of `size` stands to have its middle in the middle of `screen`.
[[nodiscard]] QPoint centredOn(const QRect& screen, QSize size);

}  // namespace tavrune
