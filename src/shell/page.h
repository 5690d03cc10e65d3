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

/// A page of the program: the topic menu above a design area that stays at the top left of the window.
class Page : public QMainWindow {
    Q_OBJECT

public:
    explicit Page(PageName name);

    [[nodiscard]] PageName name() const { return name_; }
    [[nodiscard]] TopicMenu& topicMenu() { return topicMenu_; }

    /// The size of the page, which Ctrl with plus, minus or 0 changes. Where the window is too small for it,
    /// the page can be scrolled, and follows the focus.
    [[nodiscard]] ZoomStep zoom() const { return zoom_; }
    void setZoom(ZoomStep step);

    /// The focus goes where the page has put it, otherwise to its first control.
    void takeFocus();

signals:
    /// The user has asked for another size, which the page has now.
    void zoomed(ZoomStep step);
    /// A menu entry or a page's own button asks for another page.
    void chosen(PageName target);
    /// The about box is asked for; this page stays.
    void aboutChosen();
    /// "Luk": the program is to end at once.
    void closeChosen();

protected:
    /// Fills the design area from a designer file.
    template <class Ui>
    void setUp(Ui& ui) {
        ui.setupUi(design_);
        designIsReady();
    }

    [[nodiscard]] QWidget* design() const { return design_; }

    /// Tab passes by what lies under a panel.
    bool focusNextPrevChild(bool next) override;
    /// A button's access key goes before a menu title's.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// A message box with the one button "OK". Returns at once; the page waits behind the box.
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
