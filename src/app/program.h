#pragma once

#include <QObject>
#include <QPointer>

#include "app/window.h"
#include "numeric/draws.h"
#include "shell/frm_about.h"
#include "shell/page.h"

namespace tavrune {

/// What stands on the screen: one page at a time, and the about box beside it.
class Program : public QObject {
    Q_OBJECT

public:
    explicit Program(Draws& draws);
    ~Program() override;

    /// From the start page to the end: by "Luk", or with the last window. The program's exit status.
    int run();

    /// Opens a page, maximised, and unloads the one before it. Precondition: the page is built.
    void open(PageName name);

    /// Opens the about box, or raises the one that is there.
    void openAbout();

    /// Null once the user has closed the window that it stands in.
    [[nodiscard]] Page* page() const { return window_.isNull() ? nullptr : window_->page(); }
    [[nodiscard]] Window* window() const { return window_; }
    [[nodiscard]] FrmAbout* about() const { return about_; }

signals:
    /// "Luk" in any menu: everything is to disappear at once.
    void closeChosen();

private:
    void zoomAll(ZoomStep step);

    Draws& draws_;
    // For every page, until the program ends.
    ZoomStep zoom_;
    QPointer<Window> window_;
    QPointer<FrmAbout> about_;
};

}  // namespace tavrune
