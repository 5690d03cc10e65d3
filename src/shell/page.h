#pragma once

#include <QMenuBar>
#include <QWidget>

#include "controls/control.h"
#include "controls/voice.h"
#include "shell/hearing.h"
#include "shell/page_name.h"
#include "shell/page_view.h"
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

    [[nodiscard]] PageName name() const { return name_; }
    [[nodiscard]] TopicMenu& topicMenu() { return topicMenu_; }
    [[nodiscard]] QMenuBar* menuBar() const { return menuBar_; }

    /// The size of the page that is chosen; see `SizeChoice` for how. In a window that is too small for it
    /// the page can be scrolled, and scrolls by itself to the control with the focus. A page that is to fit
    /// follows the size of the window.
    [[nodiscard]] Zoom zoom() const { return zoom_; }
    void setZoom(Zoom zoom);
    /// What that comes to: how many times as large as its design the page is, and what goes with it.
    [[nodiscard]] double factor() const { return factor_; }
    [[nodiscard]] double menuFactor() const { return menuFactor_; }

    /// Says what the page tells, in full, and what its accessible description adds.
    virtual void sayOnOpening();

    /// Gives the focus to a control on this page, as somebody who comes to it by keys; to the first one if
    /// null.
    void takeFocus(QWidget* wanted);

signals:
    /// The user has chosen a size.
    void zoomed(Zoom zoom);
    /// Menus, and what else goes with the page, have another size.
    void resized(double menuFactor);
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

    /// Tab skips controls that lie under something.
    bool focusNextPrevChild(bool next) override;
    /// If a button and a menu title have the same access key, it belongs to the button.
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// How large the page is, in units, where that is not the design area.
    struct Extent {
        /// What is in sight as a whole when the page fits its window.
        QSizeF whole{kDesignWidth, kDesignHeight};
        /// What has to be reached, by scrolling at least.
        QSizeF needed = whole;
        /// The smallest factor of a page that fits.
        double leastFit = 1;
    };
    void setExtent(const Extent& extent);

    /// Lets the page fit its window.
    void resizeEvent(QResizeEvent* event) override;

    /// What there is to hear on the page.
    [[nodiscard]] Hearing& hearing() { return hearing_; }

    /// Shows a message box with one button, "OK". Returns at once; the page cannot be used until it is
    /// closed.
    void tell(const QString& message);

private:
    void designIsReady();
    void sayOnDemand();
    void openMenu();
    void fit();
    [[nodiscard]] int barHeight() const;
    void resizeTo(double factor);
    void resizeMenusTo(double factor);

    PageName name_;
    QMenuBar* menuBar_;
    QWidget* design_;
    PageView* view_;
    Hearing hearing_;
    /// As it was said last.
    QString task_;
    bool taskIsSaid_ = false;
    Extent extent_;
    Zoom zoom_;
    double factor_ = 1;
    double menuFactor_ = 1;
    /// Of the menu at its own size.
    int plainBarHeight_ = 0;
    TopicMenu topicMenu_;
    /// The last, to go first: as a page goes, the focus moves once more.
    QObject focusListener_;
};

}  // namespace tavrune
