#pragma once

#include <QMainWindow>
#include <QPointer>

#include "shell/page.h"

namespace tavrune {

/// The window that shows the pages, one after the other. It stays open all the time: if every page had a
/// window of its own, the desktop would place each anew, and the user would see them come and go. As a main
/// window it is what screen readers take for the place of the focus.
class Window : public QMainWindow {
    Q_OBJECT

public:
    Window();

    /// Takes ownership of a page and shows it in place of the one before, which is deleted later, since it
    /// may still be handling an event. Gives the page the focus.
    void hold(Page* page);

    /// Null before the first page.
    [[nodiscard]] Page* page() const { return page_; }

protected:
    /// A page that came before the window was active says itself now.
    bool event(QEvent* event) override;

private:
    QPointer<Page> page_;
    bool hasBeenActive_ = false;
};

}  // namespace tavrune
