#pragma once

#include <QMenuBar>
#include <QScrollArea>
#include <QWidget>

#include "controls/control.h"
#include "controls/voice.h"
#include "shell/hearing.h"
#include "shell/page_name.h"
#include "shell/topic_menu.h"
#include "shell/zoom.h"

namespace tavrune {

/// The design area of a page, in units.
inline constexpr double kDesignWidth = fromTwips(9660);
inline constexpr double kDesignHeight = fromTwips(6690);

/// A page of the program: the topic menu, and below it a design area at the top left of the window. A window
/// that holds a page takes the menu bar into its own place.
class Page : public QWidget {
    Q_OBJECT

public:
    explicit Page(PageName name);
    ~Page() override;

    [[nodiscard]] PageName name() const { return name_; }
    [[nodiscard]] TopicMenu& topicMenu() { return topicMenu_; }
    [[nodiscard]] QMenuBar* menuBar() const { return menuBar_; }

    /// The size of the page; Ctrl with plus, minus or 0 changes it. In a window that is too small for it the
    /// page can be scrolled, and scrolls by itself to the control with the focus.
    [[nodiscard]] ZoomStep zoom() const { return zoom_; }
    void setZoom(ZoomStep step);

    /// Says what the page tells, in full, and what its accessible description adds.
    virtual void sayOnOpening();

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

    /// What there is to hear on the page.
    [[nodiscard]] Hearing& hearing() { return hearing_; }

    /// Shows a message box with one button, "OK". Returns at once; the page cannot be used until it is
    /// closed.
    void tell(const QString& message);

private:
    void designIsReady();
    void sayOnDemand();
    void openMenu();
    void zoomMenu();
    [[nodiscard]] bool isUnderAPanel(const QWidget& control) const;

    PageName name_;
    QMenuBar* menuBar_;
    QScrollArea* view_;
    QWidget* design_;
    Hearing hearing_;
    /// As it was said last.
    QString task_;
    bool taskIsSaid_ = false;
    ZoomStep zoom_;
    TopicMenu topicMenu_;
};

}  // namespace tavrune
