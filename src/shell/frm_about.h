#pragma once

#include <QWidget>

namespace tavrune {

/// The about box: a window of its own with no buttons, in the middle of the screen. It stays when the start
/// page gives way to a topic, and the program lasts as long as it is open.
class FrmAbout : public QWidget {
    Q_OBJECT

public:
    FrmAbout();

    /// How many times as large as its design it is; on a screen that has no room for that, less.
    void setFactor(double factor);
    [[nodiscard]] double factor() const { return factor_; }

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    /// Moves the middle of its frame to the middle of the screen.
    void centre();

    QSize designSize_;
    double factor_ = 1;
    /// It is centred only as it opens; the user may then move it.
    bool hasOpened_ = false;
};

/// Returns the top left corner of a box of `size` in the middle of `screen`.
[[nodiscard]] QPoint centredOn(const QRect& screen, QSize size);

/// Returns `box`, moved as little as it takes to lie on `screen`; to its top left if it is larger.
[[nodiscard]] QRect movedOnto(const QRect& screen, QRect box);

}  // namespace tavrune
