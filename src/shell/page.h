#pragma once

#include <QMainWindow>

#include "controls/control.h"
#include "shell/page_name.h"
#include "shell/topic_menu.h"

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

signals:
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

    /// A message box with the one button "OK". Returns at once; the page waits behind the box.
    void tell(const QString& message);

private:
    void designIsReady();

    PageName name_;
    QWidget* design_;
    TopicMenu topicMenu_;
};

}  // namespace tavrune
