#pragma once

#include <QObject>
#include <QPointer>

#include "app/window.h"
#include "numeric/draws.h"
#include "shell/frm_about.h"
#include "shell/page.h"

namespace tavrune {

/// What is on the screen: one page at a time, and perhaps the about box.
class Program : public QObject {
    Q_OBJECT

public:
    explicit Program(Draws& draws);
    ~Program() override;

    /// Opens the start page and runs until the user chooses "Luk" or closes the last window. Returns the exit
    /// status.
    int run();

    /// Opens a page, maximised, and deletes the one before it. Precondition: it is not the about box.
    void open(PageName name);

    /// Opens the about box, or raises it if it is open. Precondition: otherwise a page is open.
    void openAbout();

    /// Null before a page is opened, and once the user has closed the window.
    [[nodiscard]] Page* page() const { return window_.isNull() ? nullptr : window_->page(); }
    [[nodiscard]] Window* window() const { return window_; }
    [[nodiscard]] FrmAbout* about() const { return about_; }

signals:
    /// The user has chosen "Luk" in a menu.
    void closeChosen();

private:
    void zoomAll(Zoom zoom);
    void resizeAbout(double factor);

    Draws& draws_;
    // Of every page, until the program ends.
    Zoom zoom_;
    QPointer<Window> window_;
    QPointer<FrmAbout> about_;
};

}  // namespace tavrune
