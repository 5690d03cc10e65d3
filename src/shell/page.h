#pragma once

#include <QMainWindow>
#include <QScrollArea>

#include "controls/control.h"
#include "shell/page_name.h"
#include "shell/topic_menu.h"
#include "shell/zoom.h"

namespace tavrune {

/// The design area of a page, in units.
inline constexpr double kDesignWidth = fromTwips(9660);
inline constexpr double kDesignHeight = fromTwips(6690);

/// A page of the program: the topic menu, and below it a design area at the top left of the window.
class Page : public QMainWindow {
    Q_OBJECT

public:
    explicit Page(PageName name);

    [[nodiscard]] PageName name() const { return name_; }
    [[nodiscard]] TopicMenu& topicMenu() { return topicMenu_; }

    /// The size of the page; Ctrl with plus, minus or 0 changes it. In a window that is too small for it the
    /// page can be scrolled, and scrolls by itself to the control with the focus.
    [[nodiscard]] ZoomStep zoom() const { return zoom_; }
    void setZoom(ZoomStep step);

    /// Gives the focus to the control that had it last on this page, otherwise to the first one.
    void takeFocus();

signals:
    /// The user has changed the size of the page.
    void zoomed(ZoomStep step);
    /// The user has chosen another page, in the menu or by a button.
    void chosen(PageName target);
    /// The user wants to see the about box; this page stays.
    void aboutChosen();
    /// The user has chosen "Luk": the program ends at once.
    void closeChosen();

protected:
    /// Fills the design area from a designer file.
    template <class Ui>
    void setUp(Ui& ui) {
        ui.setupUi(design_);
        designIsReady();
    }

    [[nodiscard]] QWidget* design() const { return design_; }

    /// Tab skips controls that lie under a panel.
    bool focusNextPrevChild(bool next) override;
    /// If a button and a menu title have the same access key, it belongs to the button.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Shows a message box with one button, "OK". Returns at once; the page cannot be used until it is
    /// closed.
    void tell(const QString& message);

private:
    void designIsReady();
    void openMenu();
    void zoomMenu();
    [[nodiscard]] bool isUnderAPanel(const QWidget& control) const;

    PageName name_;
    QScrollArea* view_;
    QWidget* design_;
    ZoomStep zoom_;
    TopicMenu topicMenu_;
};

}  // namespace tavrune
