#include "shell/size_choice.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QApplication>
#include <QShortcut>

#include "controls/answer_box.h"
#include "controls/voice.h"
#include "shell/topic_menu.h"

namespace tavrune {
namespace {

// Not as texts, to read which the words for the keys would be looked up in the user's language.
constexpr QKeyCombination kLarger = Qt::CTRL | Qt::Key_Plus;
constexpr QKeyCombination kSmaller = Qt::CTRL | Qt::Key_Minus;
constexpr QKeyCombination kFit = Qt::CTRL | Qt::Key_9;
constexpr QKeyCombination kDesignSize = Qt::CTRL | Qt::Key_0;

/// One notch of a wheel, as Qt counts. Finer wheels and touchpads send parts of it.
constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;

/// How far apart fingers move, at least, for one step.
constexpr double kPinch = 1.2;

}  // namespace

SizeChoice::SizeChoice(QWidget* window, Sizes sizes)
    : QObject(window), window_(window), sizes_(std::move(sizes)) {
    const auto bind = [this](QKeyCombination key, void (SizeChoice::*action)() const) {
        connect(new QShortcut(QKeySequence(key), window_), &QShortcut::activated, this, action);
    };
    bind(kLarger, &SizeChoice::chooseLarger);
    // On keyboards with plus above the equals sign nobody has to hold Shift.
    bind(Qt::CTRL | Qt::Key_Equal, &SizeChoice::chooseLarger);
    bind(kSmaller, &SizeChoice::chooseSmaller);
    bind(kFit, &SizeChoice::chooseFit);
    bind(kDesignSize, &SizeChoice::chooseDesignSize);
    // Some desktops make a context menu event of this key, and some do not.
    bind(Qt::SHIFT | Qt::Key_F10, &SizeChoice::openMenuByKey);
    listenTo(window);
}

void SizeChoice::chooseLarger() const { choose(largerThan(sizes_.factor()).value_or(sizes_.chosen())); }

void SizeChoice::chooseSmaller() const { choose(smallerThan(sizes_.factor()).value_or(sizes_.chosen())); }

void SizeChoice::choose(Zoom zoom) const {
    sizes_.choose(zoom);
    Voice::instance().say(wordsFor(zoom));
}

void SizeChoice::addTo(QMenu& menu) const {
    // The keys are those of the window: beside the entries they are only told.
    const auto add = [&menu, this](const char* caption, QKeyCombination key, bool changes,
                                   void (SizeChoice::*action)() const) {
        QAction* const entry = menu.addAction(caption);
        entry->setShortcut(QKeySequence(key));
        entry->setShortcutVisibleInContextMenu(true);
        entry->setEnabled(changes);
        connect(entry, &QAction::triggered, this, action);
    };
    const Zoom chosen = sizes_.chosen();
    add("Større", kLarger, largerThan(sizes_.factor()).has_value(), &SizeChoice::chooseLarger);
    add("Mindre", kSmaller, smallerThan(sizes_.factor()).has_value(), &SizeChoice::chooseSmaller);
    add("Tilpas til vinduet", kFit, !chosen.isFitted(), &SizeChoice::chooseFit);
    add("Som før (100 %)", kDesignSize, chosen != Zoom(), &SizeChoice::chooseDesignSize);
}

bool SizeChoice::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Wheel:
            if (turned(*static_cast<QWheelEvent*>(event))) {
                event->accept();
                return true;
            }
            break;
        case QEvent::NativeGesture:
            if (pinched(*static_cast<QNativeGestureEvent*>(event))) {
                event->accept();
                return true;
            }
            break;
        case QEvent::ContextMenu:
            openMenu(*static_cast<QContextMenuEvent*>(event));
            return true;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

bool SizeChoice::turned(const QWheelEvent& event) {
    if (event.modifiers() != Qt::ControlModifier) {
        turned_ = 0;
        return false;
    }
    // Whoever turns back wants an answer at once; whoever turns further than to the last step has come there.
    constexpr int kAllSteps = kNotch * static_cast<int>(kZoomSteps.size());
    const int delta = std::clamp(event.angleDelta().y(), -kAllSteps, kAllSteps);
    turned_ = (turned_ * delta < 0 ? 0 : turned_) + delta;
    for (; turned_ >= kNotch; turned_ -= kNotch) {
        chooseLarger();
    }
    for (; turned_ <= -kNotch; turned_ += kNotch) {
        chooseSmaller();
    }
    return true;
}

bool SizeChoice::pinched(const QNativeGestureEvent& event) {
    switch (event.gestureType()) {
        case Qt::BeginNativeGesture:
        case Qt::EndNativeGesture:
            pinched_ = 1;
            return false;
        case Qt::ZoomNativeGesture:
            break;
        default:
            return false;
    }
    pinched_ *= 1 + event.value();
    if (pinched_ >= kPinch) {
        pinched_ = 1;
        chooseLarger();
    } else if (pinched_ <= 1 / kPinch) {
        pinched_ = 1;
        chooseSmaller();
    }
    return true;
}

void SizeChoice::openMenu(const QContextMenuEvent& event) const {
    const bool isByKey = event.reason() == QContextMenuEvent::Keyboard;
    QWidget* const asked =
        isByKey ? window_->focusWidget() : window_->childAt(window_->mapFromGlobal(event.globalPos()));
    auto* const box = qobject_cast<AnswerBox*>(asked);
    QMenu* const menu = box != nullptr ? box->createStandardContextMenu() : new QMenu(window_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (box != nullptr) {
        menu->addSeparator();
    }
    addTo(*menu);
    zoomMenu(*menu, sizes_.menuFactor());
    // A reader has followed the focus into the menu, and is not told that it comes back.
    connect(
        menu, &QMenu::aboutToHide, this,
        [] {
            if (QWidget* const focused = QApplication::focusWidget()) {
                QAccessibleEvent back(focused, QAccessible::Focus);
                QAccessible::updateAccessibility(&back);
            }
        },
        Qt::QueuedConnection);
    menu->popup(event.globalPos());
    if (isByKey) {
        selectFirstEntry(*menu);
    }
}

void SizeChoice::openMenuByKey() const {
    const QWidget* const focused = window_->focusWidget();
    const QPoint below = focused != nullptr ? focused->mapToGlobal(focused->rect().bottomLeft())
                                            : window_->mapToGlobal(window_->rect().center());
    openMenu(QContextMenuEvent(QContextMenuEvent::Keyboard, window_->mapFromGlobal(below), below));
}

}  // namespace tavrune
