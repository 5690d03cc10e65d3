#include "shell/page.h"

#include <algorithm>

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "controls/access_key.h"
#include "controls/accessible_controls.h"
#include "controls/text.h"
#include "shell/size_choice.h"

namespace tavrune {
Page::Page(PageName name)
    : name_(name),
      menuBar_(new QMenuBar(this)),
      design_(new QWidget),
      view_(new PageView(design_, this)),
      hearing_(*design_),
      topicMenu_(*menuBar_, name,
                 {.open = [this](PageName target) { emit chosen(target); },
                  .close = [this] { emit closeChosen(); }}) {
    setObjectName(fromUtf8(textOf(name)));
    design_->setFont(designFont());
    QPalette blackOnWhite = palette();
    blackOnWhite.setColor(QPalette::Text, kBlack);
    blackOnWhite.setColor(QPalette::Base, kWhite);
    design_->setPalette(blackOnWhite);
    setExtent({});
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(menuBar_);
    layout->addWidget(view_);
    auto* const sizes = new SizeChoice(this, {.chosen = [this] { return zoom_; },
                                              .factor = [this] { return factor_; },
                                              .menuFactor = [this] { return menuFactor_; },
                                              .choose =
                                                  [this](Zoom zoom) {
                                                      setZoom(zoom);
                                                      emit zoomed(zoom);
                                                  }});
    sizes->listenTo(view_->viewport());
    connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, this, &Page::sayOnDemand);
    connect(qApp, &QApplication::focusChanged, &focusListener_, [this](const QWidget* /*from*/, QWidget* to) {
        if (design_->isAncestorOf(to)) {
            taskIsSaid_ = false;
            view_->showFocus();
        }
    });
    menuBar()->installEventFilter(this);
    // As on most desktops; and on pages where a button has the access key of the menu, the only key for it.
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this, &Page::openMenu);
}

void Page::designIsReady() { setWindowTitle(design_->windowTitle()); }

void Page::sayOnOpening() {
    if (Voice::instance().isHeard()) {
        task_ = (hearing_.task() + ' ' + accessibleDescription()).trimmed();
        Voice::instance().say(task_);
    }
}

void Page::sayOnDemand() {
    const QString graphs = hearing_.graphs();
    if (taskIsSaid_ && !graphs.isEmpty()) {
        Voice::instance().say(graphs);
    } else if (task_.isEmpty()) {
        sayOnOpening();
    } else {
        Voice::instance().say(task_);
    }
    taskIsSaid_ = !taskIsSaid_;
}

void Page::setExtent(const Extent& extent) {
    extent_ = extent;
    resizeTo(factor_);
}

void Page::setZoom(Zoom zoom) {
    zoom_ = zoom;
    if (!zoom.isFitted()) {
        resizeMenusTo(zoom.factor());
        resizeTo(zoom.factor());
    } else if (isVisible()) {
        fit();
    }
}

void Page::fit() {
    const QSizeF window = this->window()->size();
    // How large a page of exercises can be with its menu, so that menus are alike on all pages. By the menu
    // at its own size: otherwise what is found would depend on the size before, and two could give way to
    // each other without end.
    const int bar = menuFactor_ == 1 ? barHeight() : plainBarHeight_;
    const double page = std::min(window.width() / kDesignWidth, window.height() / (kDesignHeight + bar));
    resizeMenusTo(std::clamp(page, 1.0, kLargestFit));
    const double wanted = std::min(window.width() / extent_.whole.width(),
                                   (window.height() - barHeight()) / extent_.whole.height());
    resizeTo(std::clamp(wanted, extent_.leastFit, kLargestFit));
}

int Page::barHeight() const { return menuBar_->heightForWidth(window()->width()); }

void Page::resizeTo(double factor) {
    if (factor != factor_) {
        factor_ = factor;
        zoomControls(*design_, factor);
    }
    view_->setNeeded((extent_.needed * factor_).toSize());
}

void Page::resizeMenusTo(double factor) {
    if (factor == menuFactor_) {
        return;
    }
    if (menuFactor_ == 1) {
        plainBarHeight_ = barHeight();
    }
    menuFactor_ = factor;
    zoomMenu(*menuBar_, factor);
    for (QMenu* menu : menuBar_->findChildren<QMenu*>()) {
        zoomMenu(*menu, factor);
    }
    emit resized(factor);
}

void Page::resizeEvent(QResizeEvent* /*event*/) {
    if (zoom_.isFitted()) {
        fit();
    }
}

void Page::takeFocus(QWidget* wanted) {
    if (wanted != nullptr) {
        wanted->setFocus(Qt::TabFocusReason);
    } else {
        focusNextPrevChild(true);
    }
}

void Page::openMenu() {
    QAction* const title = menuBar()->actions().constFirst();
    menuBar()->setActiveAction(title);
    // The access key of the menu does so, too.
    selectFirstEntry(*title->menu());
}

bool Page::focusNextPrevChild(bool next) {
    const QWidget* const start = focusWidget();
    while (QWidget::focusNextPrevChild(next)) {
        const QWidget* const now = focusWidget();
        if (now == start || now == nullptr || !isCovered(*now)) {
            return true;
        }
    }
    return false;
}

bool Page::eventFilter(QObject* watched, QEvent* event) {
    return clickedInsteadOfMenu(*design_, event) || QWidget::eventFilter(watched, event);
}

void Page::tell(const QString& message) {
    auto* const box = new QMessageBox(QMessageBox::NoIcon, "Tavrune", message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->button(QMessageBox::Ok)->setText("OK");
    // Polished now, since a button that is polished after the box is shown has the box laid out and painted
    // twice.
    QCoreApplication::sendPostedEvents(box->button(QMessageBox::Ok), QEvent::PolishRequest);
    box->show();
}

}  // namespace tavrune
