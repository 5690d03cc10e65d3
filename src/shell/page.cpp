#include "shell/page.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>

#include "controls/text.h"

namespace tavrune {

Page::Page(PageName name)
    : name_(name),
      view_(new QScrollArea(this)),
      design_(new QWidget),
      topicMenu_(*menuBar(), name,
                 {.open = [this](PageName target) { emit chosen(target); },
                  .close = [this] { emit closeChosen(); }}) {
    setObjectName(fromUtf8(textOf(name)));
    setContextMenuPolicy(Qt::NoContextMenu);
    design_->setFont(designFont());
    view_->setWidget(design_);
    view_->setWidgetResizable(true);
    view_->setFrameShape(QFrame::NoFrame);
    view_->setFocusPolicy(Qt::NoFocus);
    setCentralWidget(view_);
    bindZoomKeys(
        this, [this] { return zoom_; },
        [this](ZoomStep step) {
            setZoom(step);
            emit zoomed(step);
        });
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*from*/, QWidget* to) {
        if (to != nullptr && design_->isAncestorOf(to)) {
            view_->ensureWidgetVisible(to);
        }
    });
    setMinimumSize(qRound(kDesignWidth), qRound(kDesignHeight) + menuBar()->sizeHint().height());
}

void Page::designIsReady() { setWindowTitle(design_->windowTitle()); }

void Page::setZoom(ZoomStep step) {
    zoom_ = step;
    zoomControls(*design_, step);
    QSize size = (QSizeF(kDesignWidth, kDesignHeight) * step.factor()).toSize();
    if (step != ZoomStep()) {
        // The start page reaches over the design area.
        const QRect all = design_->childrenRect();
        size = size.expandedTo({all.right() + 1, all.bottom() + 1});
    }
    design_->setMinimumSize(size);
}

void Page::tell(const QString& message) {
    auto* const box = new QMessageBox(QMessageBox::NoIcon, "Tavrune", message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->button(QMessageBox::Ok)->setText("OK");
    box->open();
}

}  // namespace tavrune
