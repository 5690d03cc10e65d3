#pragma once

#include <QPointer>
#include <QWidget>

#include "shell/page.h"

namespace tavrune {

/// The window in which the pages follow each other. It stands as long as the program does: another one for
/// every page would have to be placed by the desktop each time, and be seen to come and go.
class Window : public QWidget {
    Q_OBJECT

public:
    Window();

    /// Puts a page into the place of the one before it, which is deleted with the next round of events. The
    /// page belongs to the window from then on. The focus goes where the page wants it, otherwise to its
    /// first control.
    void hold(Page* page);

    /// Null before the first, and once the window is gone.
    [[nodiscard]] Page* page() const { return page_; }

private:
    QPointer<Page> page_;
};

}  // namespace tavrune
