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

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The middle of its frame in the middle of the screen.
    void centre();

    QSize designSize_;
    /// It is centred as it opens, and stays where it is from then on.
    bool hasOpened_ = false;
};

/// Where a box of `size` stands to have its middle in the middle of `screen`.
[[nodiscard]] QPoint centredOn(const QRect& screen, QSize size);

}  // namespace tavrune
