#pragma once

#include <algorithm>
#include <optional>

#include <QColor>
#include <QRectF>
#include <QStyleOption>
#include <QWidget>

namespace tavrune {

/// Converts a length from twips, 1440 to the inch, into units of the design.
[[nodiscard]] constexpr double fromTwips(double twips) { return twips / 15; }

/// Returns a colour by its channels, 0 to 255. A channel outside these bounds counts as the nearer bound.
[[nodiscard]] constexpr QColor rgb(int red, int green, int blue) {
    const auto channel = [](int asked) { return std::clamp(asked, 0, 255); };
    return {channel(red), channel(green), channel(blue)};
}

inline const QColor kWhite = rgb(255, 255, 255);
inline const QColor kRed = rgb(255, 0, 0);
inline const QColor kBlack = rgb(0, 0, 0);
/// The colour of what is right: verdicts, lines and given answers.
inline const QColor kGreen = rgb(0, 130, 0);
inline const QColor kBlue = rgb(0, 0, 255);

inline constexpr double kDesignTextSize = 11;

/// Returns the font of every text on a page, 11 units high. It is the same everywhere because captions have
/// gaps for numbers, whose widths fit this font only.
[[nodiscard]] const QFont& designFont();

/// Returns a font that looks alike and is quicker to paint with for the first time: it has but the first of
/// the families of `font` that is installed. Of several Qt looks up at once what stands in for each of them.
[[nodiscard]] const QFont& paintFont(const QFont& font);

/// What all controls on a page have in common: a place in units of the design, and a text style. The place
/// comes from the designer file; code changes it by the setters only, since they also compute the pixels for
/// the zoom.
class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    /// Returns left, top, width and height in units, within the parent.
    [[nodiscard]] QRectF place() const;
    /// Returns the size, in pixels, that the control has before any zoom.
    [[nodiscard]] QSize designSize() const;
    void setPlace(const QRectF& place);
    void setLeft(double left);
    void setTop(double top);
    void setWidth(double width);

    /// Returns whether the control itself is not hidden. The panel around it may be.
    [[nodiscard]] bool isShown() const { return !self_->isHidden(); }

    /// Sets the height of the text in units, 11 at first. On the screen it is rounded to whole units, then
    /// zoomed.
    void setTextSize(double units);
    [[nodiscard]] double textSize() const { return textSize_; }
    void setBold(bool bold);
    void setSerif(bool serif);
    void setUnderlined(bool underlined);

    /// Sets how many device-independent pixels a unit has, 1 at first.
    void setZoom(double zoom);
    [[nodiscard]] double zoom() const { return zoom_; }

    /// The font as the design has it, before any zoom.
    [[nodiscard]] QFont unzoomedFont() const;

    [[nodiscard]] QWidget* widget() const { return self_; }

protected:
    explicit Control(QWidget* self) : self_(self) {}

    /// Sets the font of the widget, unless it has inherited the same one from its page.
    void wear(const QFont& font);

    /// Called after the font has changed.
    virtual void fontHasChanged() {}

    void setPaletteColour(QPalette::ColorRole role, const QColor& colour);

private:
    void applyPlace();
    void applyFont();

    QWidget* self_;
    std::optional<QRectF> place_;
    std::optional<QFont> font_;
    double textSize_ = kDesignTextSize;
    double zoom_ = 1;
};

/// Returns the width of a line, in device-independent pixels, that has as many whole pixels of the screen as
/// fit into `width`, at least one. Lines of broken widths would not look alike.
[[nodiscard]] double wholePixels(const QPaintDevice& device, double width);

/// Draws an outline of a width along the inner edges of `box`.
void drawOutline(QPainter& painter, const QRectF& box, double units, const QColor& colour);
/// Draws an outline, a unit wide, along the inner edges of a control.
void drawOutline(QWidget& widget, double zoom, const QColor& colour);

/// Has the style draw the focus also if it was not moved by a key; styles leave it out then.
void showFocusAlways(QStyleOption& option);

/// Gives the focus to a control; does nothing if that is hidden or disabled. The text of a box is not
/// selected, and its cursor stays where it was.
void focusOn(QWidget* widget);

}  // namespace tavrune
