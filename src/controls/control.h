#pragma once

#include <algorithm>
#include <optional>

#include <QColor>
#include <QRectF>
#include <QStyleOption>
#include <QWidget>

namespace tavrune {

/// Lengths on a page are given in twips, 1440 to the inch; 15 of them are one unit of the design.
[[nodiscard]] constexpr double fromTwips(double twips) { return twips / 15; }

/// A colour by its channels, 0 to 255. One that is asked for as more, or less, counts as the nearest there
/// is.
[[nodiscard]] constexpr QColor rgb(int red, int green, int blue) {
    const auto channel = [](int asked) { return std::clamp(asked, 0, 255); };
    return {channel(red), channel(green), channel(blue)};
}

inline const QColor kWhite = rgb(255, 255, 255);
inline const QColor kRed = rgb(255, 0, 0);
inline const QColor kBlack = rgb(0, 0, 0);
/// What is right: verdicts, lines and given answers.
inline const QColor kGreen = rgb(0, 130, 0);
inline const QColor kBlue = rgb(0, 0, 255);

inline constexpr double kDesignTextSize = 11;

/// The font of every text on a page, 11 units high: gaps in captions, into which numbers are laid, fit just
/// this one.
[[nodiscard]] const QFont& designFont();

/// What everything on a page has in common: a place in units of the design, and a text style. The place on
/// the screen is made from it in `setZoom` and in the setters, and nowhere else.
///
/// A control's place comes from its designer file; code that moves or sizes it does so through the setters.
class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    /// Left, top, width and height in units, within the parent.
    [[nodiscard]] QRectF place() const;
    void setPlace(const QRectF& place);
    void setLeft(double left);
    void setTop(double top);
    void setWidth(double width);
    void setHeight(double height);

    /// The control's own flag: true also where the panel around it is hidden.
    [[nodiscard]] bool isShown() const { return !self_->isHidden(); }

    /// Height of the text in units, 11 until set. The screen shows whole units, times the zoom.
    void setTextSize(double units);
    [[nodiscard]] double textSize() const { return textSize_; }
    void setBold(bool bold);
    void setSerif(bool serif);
    void setUnderlined(bool underlined);

    /// 1 is one device-independent pixel for each unit.
    void setZoom(double zoom);
    [[nodiscard]] double zoom() const { return zoom_; }

    [[nodiscard]] QWidget* widget() const { return self_; }

protected:
    explicit Control(QWidget* self) : self_(self) {}

    /// The font as the design has it, before any zoom.
    [[nodiscard]] QFont unzoomedFont() const;

    /// Has the text in `font`, which a page hands down to what stands on it.
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

/// Draws an outline within the edges of `box`: so many units wide, at every zoom and device pixel ratio.
void drawOutline(QPainter& painter, const QRectF& box, double units, const QColor& colour);
/// The same round a control, a unit wide.
void drawOutline(QWidget& widget, double zoom, const QColor& colour);

/// Has the focus drawn whichever way it came; styles leave it out until a key has moved it.
void showFocusAlways(QStyleOption& option);

/// Gives the focus to a control that can have it; does nothing for one that is hidden or disabled. What a box
/// holds stays as it is, with the cursor where it was.
void focusOn(QWidget* widget);

}  // namespace tavrune
