#pragma once

#include <QScrollArea>

namespace tavrune {

/// The part of a window in which a page is seen: from its top left, to be scrolled where there is too little
/// room. The control with the focus stays in sight.
class PageView : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of the page.
    PageView(QWidget* page, QWidget* parent);

    /// How much room the page needs; at once.
    void setNeeded(QSize needed);

    /// Scrolls to the control with the focus, if there is one on the page.
    void showFocus();

    /// The room that the page needs, on a screen that has it.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

}  // namespace tavrune
