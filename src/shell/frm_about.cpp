#include "shell/frm_about.h"

#include <algorithm>

#include <QScreen>
#include <QTimer>

#include "controls/text.h"
#include "controls/voice.h"
#include "shell/hearing.h"
#include "shell/page_name.h"
#include "shell/ui_frm_about.h"
#include "shell/zoom.h"

namespace tavrune {

FrmAbout::FrmAbout() {
    Ui::FrmAbout ui;
    ui.setupUi(this);
    setObjectName(fromUtf8(textOf(PageName::FrmAbout)));
    designSize_ = size();
    setFixedSize(designSize_);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
}

void FrmAbout::setFactor(double factor) {
    const QSizeF room = screen()->availableSize() - (frameGeometry().size() - size());
    factor_ = std::min({factor, room.width() / designSize_.width(), room.height() / designSize_.height()});
    zoomControls(*this, factor_);
    setFixedSize(designSize_ * factor_);
    if (isVisible()) {
        move(movedOnto(screen()->availableGeometry(), frameGeometry()).topLeft());
    }
}

void FrmAbout::showEvent(QShowEvent* /*event*/) {
    if (!hasOpened_) {
        centre();
    }
}

bool FrmAbout::event(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && Voice::instance().isHeard()) {
        // After a reader has said the title.
        QTimer::singleShot(0, this, [this] { Voice::instance().say(Hearing(*this).task()); });
    }
    return QWidget::event(event);
}

void FrmAbout::paintEvent(QPaintEvent* /*event*/) {
    if (!hasOpened_) {
        hasOpened_ = true;
        // Now the size of the frame of the window manager is known.
        QTimer::singleShot(0, this, &FrmAbout::centre);
    }
}

void FrmAbout::centre() { move(centredOn(screen()->geometry(), frameGeometry().size())); }

QPoint centredOn(const QRect& screen, QSize size) {
    return {screen.left() + (screen.width() - size.width()) / 2,
            screen.top() + (screen.height() - size.height()) / 2};
}

QRect movedOnto(const QRect& screen, QRect box) {
    box.moveRight(std::min(box.right(), screen.right()));
    box.moveBottom(std::min(box.bottom(), screen.bottom()));
    box.moveLeft(std::max(box.left(), screen.left()));
    box.moveTop(std::max(box.top(), screen.top()));
    return box;
}

}  // namespace tavrune
