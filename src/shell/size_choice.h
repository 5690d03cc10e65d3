#pragma once

#include <functional>

#include <QContextMenuEvent>
#include <QMenu>
#include <QNativeGestureEvent>
#include <QObject>
#include <QWheelEvent>

#include "shell/zoom.h"

namespace tavrune {

/// Lets a student choose the size of a window: by keys, by Ctrl and the wheel, by pinching a touchpad, and by
/// a context menu, in which fields keep their own entries above those of the size. Each choice is said.
class SizeChoice : public QObject {
    Q_OBJECT

public:
    /// How a window is sized. `choose` takes every choice, also one that changes nothing.
    struct Sizes {
        std::function<Zoom()> chosen;
        /// What the choice comes to: how many times as large as its design the window is.
        std::function<double()> factor;
        /// How many times as large menus are.
        std::function<double()> menuFactor;
        std::function<void(Zoom)> choose;
    };

    /// Takes the keys that are pressed in `window`. Its parent is the window.
    SizeChoice(QWidget* window, Sizes sizes);

    /// Also takes what comes to a part of the window that would keep it: a part that scrolls keeps the wheel.
    void listenTo(QObject* part) { part->installEventFilter(this); }

    /// Adds the four entries to a menu; those that would change nothing are disabled.
    void addTo(QMenu& menu) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void chooseLarger() const;
    void chooseSmaller() const;
    void chooseFit() const { choose(Zoom::fitted()); }
    void chooseDesignSize() const { choose(Zoom()); }
    void choose(Zoom zoom) const;
    bool turned(const QWheelEvent& event);
    bool pinched(const QNativeGestureEvent& event);
    void openMenu(const QContextMenuEvent& event) const;
    void openMenuByKey() const;

    QWidget* window_;
    Sizes sizes_;
    // Of the wheel, in its own measure, and of the fingers: not yet a step.
    int turned_ = 0;
    double pinched_ = 1;
};

}  // namespace tavrune
