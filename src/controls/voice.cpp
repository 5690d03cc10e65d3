#include "controls/voice.h"

#include <utility>

#include <QApplication>
#include <QMetaMethod>

#include "controls/accessible_controls.h"

namespace tavrune {
namespace {

bool isOfText(QAccessible::Event type) {
    switch (type) {
        case QAccessible::TextCaretMoved:
        case QAccessible::TextSelectionChanged:
        case QAccessible::TextInserted:
        case QAccessible::TextRemoved:
        case QAccessible::TextUpdated:
            return true;
        default:
            return false;
    }
}

bool hasFocus(const QObject* object) {
    const auto* const widget = qobject_cast<const QWidget*>(object);
    return widget == nullptr || widget->hasFocus();
}

QString nameOf(QWidget& widget) {
    const QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
    const QString name = interface == nullptr ? QString() : interface->text(QAccessible::Name);
    return name.isEmpty() ? name : name + '.';
}

bool isTold(QWidget& widget) {
    const QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
    return interface != nullptr && !interface->state().invisible;
}

}  // namespace

Announcements& Announcements::of(QWidget& window) {
    auto* const known = window.findChild<Announcements*>(QString(), Qt::FindDirectChildrenOnly);
    return known != nullptr ? *known : *new Announcements(window);
}

Announcements::Announcements(QWidget& window) : QWidget(&window) {
    constexpr int kAsManyAsMayBeUnread = 8;
    for (int i = 0; i < kAsManyAsMayBeUnread; ++i) {
        notifications_.push_back(new QWidget(this));
    }
    hide();
}

QWidget* Announcements::next(const QString& words) {
    QWidget* const notification = notifications_[next_];
    next_ = (next_ + 1) % notifications_.size();
    notification->setAccessibleName(words);
    return notification;
}

Voice& Voice::instance() {
    static Voice voice;
    return voice;
}

bool Voice::isHeard() const {
    return QAccessible::isActive() || isSignalConnected(QMetaMethod::fromSignal(&Voice::said));
}

void Voice::takeOver() { QAccessible::installUpdateHandler(&Voice::pass); }

void Voice::pass(QAccessibleEvent* event) { instance().filter(*event); }

void Voice::filter(QAccessibleEvent& event) {
    if (rounds_ > 0) {
        if (event.type() == QAccessible::Focus) {
            focusIsKeptBack_ = true;
            return;
        }
        // Told at the end, as far as they are true then.
        if (event.type() == QAccessible::ObjectShow || event.type() == QAccessible::ObjectHide) {
            return;
        }
    }
    if (event.type() == QAccessible::Focus) {
        focus_ = event.object();
    }
    // A field whose text or selection changes before a reader knows of its focus is taken for said by it.
    // What the toolkit does to one that loses the focus is nobody's doing.
    if (!isOfText(event.type()) || (rounds_ == 0 && event.object() == focus_ && hasFocus(event.object()))) {
        deliver(event);
    }
}

void Voice::deliver(QAccessibleEvent& event) {
    if (outlet_) {
        outlet_(event);
        return;
    }
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(&event);
    QAccessible::installUpdateHandler(&Voice::pass);
}

void Voice::say(const QString& words) {
    if (words.isEmpty()) {
        return;
    }
    if (rounds_ > 0) {
        words_ << words;
    } else {
        sayNow(words);
    }
}

void Voice::begin() {
    if (rounds_++ == 0 && sights_.empty()) {
        sights_ = sightsNow();
    }
}

void Voice::end() {
    if (--rounds_ > 0) {
        return;
    }
    tellSights();
    QWidget* const focused = QApplication::focusWidget();
    // A reader says nothing of a focus that it knows already.
    if (std::exchange(focusIsDue_, false) && focused != nullptr && focused == focus_) {
        words_ << nameOf(*focused);
    }
    const QStringList words = std::exchange(words_, {});
    if (!words.isEmpty()) {
        sayNow(words.join(' '));
    }
    if (std::exchange(focusIsKeptBack_, false) && focused != nullptr) {
        QAccessibleEvent event(focused, QAccessible::Focus);
        focus_ = focused;
        deliver(event);
    }
}

Voice::Sights Voice::sightsNow() const {
    Sights now;
    const QWidget* const window = QApplication::activeWindow();
    if (window != nullptr && isHeard()) {
        const StillPages still;
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            now[widget] = isTold(*widget);
        }
    }
    return now;
}

void Voice::tellSights() {
    const Sights before = std::exchange(sights_, sightsNow());
    for (const auto& [widget, isNowTold] : sights_) {
        const auto then = before.find(widget);
        if (then == before.end() || then->second == isNowTold) {
            continue;
        }
        if (isNowTold) {
            // Readers keep in mind that it was not visible, and Qt tells them no more than that it shows now:
            // to them it is another thing from here on.
            QAccessible::deleteAccessibleInterface(
                QAccessible::uniqueId(QAccessible::queryAccessibleInterface(widget)));
        }
        QAccessibleEvent event(widget, isNowTold ? QAccessible::ObjectShow : QAccessible::ObjectHide);
        deliver(event);
    }
}

void Voice::sayNow(const QString& words) {
    emit said(words);
    QWidget* const window = QApplication::activeWindow();
    if (window == nullptr || !isHeard()) {
        return;
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(window, words);
#else
    QAccessibleEvent event(Announcements::of(*window).next(words), QAccessible::ObjectShow);
#endif
    deliver(event);
}

}  // namespace tavrune
