#include "shell/page_view.h"

#include <QApplication>
#include <QScreen>

namespace tavrune {
namespace {

/// What a window cannot be made smaller than, in pixels: a few fields can be seen.
constexpr QSize kSmallest(240, 160);

/// What is seen round the control with the focus, in pixels.
constexpr int kAround = 50;

}  // namespace

PageView::PageView(QWidget* page, QWidget* parent) : QScrollArea(parent) {
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setMinimumSize(kSmallest);
}

void PageView::setNeeded(QSize needed) {
    if (needed == widget()->minimumSize()) {
        return;
    }
    widget()->setMinimumSize(needed);
    // Not later: what is painted until then would be painted twice.
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &request);
    showFocus();
}

void PageView::showFocus() {
    QWidget* const focused = widget()->focusWidget();
    if (focused == nullptr) {
        return;
    }
    // All of it, not only the cursor of a field; of what is larger than the view, the middle.
    const QRect place(focused->mapTo(widget(), QPoint()), focused->size());
    const QSize around = (place.size() / 2 + QSize(kAround, kAround)).boundedTo(viewport()->size() / 2);
    ensureVisible(place.center().x(), place.center().y(), around.width(), around.height());
}

QSize PageView::sizeHint() const { return widget()->minimumSize().boundedTo(screen()->availableSize()); }

void PageView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    showFocus();
}

}  // namespace tavrune
