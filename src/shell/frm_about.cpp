#include "shell/frm_about.h"

#include <QKeyEvent>
#include <QScreen>

#include "shell/page_name.h"
#include "shell/ui_frm_about.h"

namespace tavrune {

FrmAbout::FrmAbout() {
    Ui::FrmAbout ui;
    ui.setupUi(this);
    setObjectName(QString::fromUtf8(textOf(PageName::FrmAbout).data()));
    setFont(designFont());
    setFixedSize(size());
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
}

void FrmAbout::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    move(centredOn(screen()->geometry(), size()));
}

void FrmAbout::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

QPoint centredOn(const QRect& screen, QSize size) {
    return {screen.left() + (screen.width() - size.width()) / 2,
            screen.top() + (screen.height() - size.height()) / 2};
}

}  // namespace tavrune
