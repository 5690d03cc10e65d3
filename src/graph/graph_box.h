#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include "controls/control.h"

namespace tavrune {

/// A user scale: the coordinates of a box's top left and bottom right corners. y grows upwards where y1 is
/// the larger.
struct GraphScale {
    float x1{};
    float y1{};
    float x2{};
    float y2{};

    /// From a y counted up from the lower border to one of the scale, or back: where the scale runs downwards
    /// from 0.
    [[nodiscard]] double turned(double y) const { return y2 - y; }

    bool operator==(const GraphScale&) const = default;
};

enum class LineStyle { Solid = 0, Dotted = 2 };

/// What a figure is to somebody who looks at it.
enum class Meaning {
    Axis,
    /// A tick of an axis, at an x or at a y.
    TickOfX,
    TickOfY,
    /// Straight, broken or curved: strokes of which each begins where the last one ends, or leaves a gap.
    Line,
    /// Lines side by side that look like one.
    ThickLine,
    /// Points that follow one another.
    DottedCurve,
    /// Lines side by side that fill an area, each for the strip on its right.
    Hatching,
    Point,
    /// A short line across an axis.
    Dash,
    /// A square of lines side by side where a line ends.
    Square,
    /// Two lines through one point.
    Cross,
    /// Two lines from one point.
    Arrowhead,
};

/// One line or point as it was asked for, with all that it was drawn with.
struct Stroke {
    enum class Kind { Line, Point };

    Kind kind = Kind::Line;
    /// In the coordinates of `scale`; a point has its second end where its first is.
    float x1{};
    float y1{};
    float x2{};
    float y2{};
    QColor colour;
    LineStyle style = LineStyle::Solid;
    int width = 1;
    GraphScale scale;
    Meaning meaning = Meaning::Line;
    /// The same for all strokes of one figure, which follow one another; 0 for a figure of one stroke.
    std::size_t figure{};

    /// Compares what is drawn. What it means is nothing to be seen: a picture is the same whoever drew it,
    /// and a frame that keeps each stroke once has it already.
    bool operator==(const Stroke& other) const;
};

/// An end of a line, moved up by `above`, whichever way y is counted: so a square is made round its middle.
struct LineEnd {
    double x;
    double y;
    double above;
};

/// Up to so many strokes are painted anew each time; of more a picture is kept.
inline constexpr std::size_t kFewStrokes = 2048;

/// A rectangle on which axes, ticks and curves are drawn, in coordinates of the exercise.
///
/// A line that no `Figure` lays claim to is a `Meaning::Line` of its own, a point a `Meaning::Point`.
/// What is drawn stays until `Cls`. Coordinates reach the box as singles. Whatever lies outside is clipped;
/// infinities and numbers that no picture can show are drawn as far as they can be seen, NaN not at all.
/// Texts are labels that stand on the box: `place` puts them by its scale.
class GraphBox : public QWidget, public Control {
    Q_OBJECT

public:
    explicit GraphBox(QWidget* parent = nullptr);

    // The drawing operations.
    /// (x1, y1) becomes the top left corner, (x2, y2) the bottom right one. Nothing is cleared.
    void Scale(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2, const QColor& colour);
    void Line(const LineEnd& from, const LineEnd& to, const QColor& colour);
    void PSet(double x, double y);
    void PSet(double x, double y, const QColor& colour);
    /// Back to the bare background; scale, style and width stay.
    void Cls();
    void DrawStyle(LineStyle style) { style_ = style; }
    /// In units, 1 until set.
    void DrawWidth(int width) { width_ = width; }

    /// In twips of the box until it is set.
    [[nodiscard]] GraphScale scale() const;
    /// All that stands on the box, in the order drawn.
    [[nodiscard]] const std::vector<Stroke>& strokes() const { return strokes_; }

    /// Puts the top left corner of a control that stands on this box at (x, y) of the scale.
    void place(Control& control, double x, double y) const;
    void placeLeft(Control& control, double x) const;
    /// The right edge, the left edge and a width of such a control, in the scale.
    [[nodiscard]] double leftOf(const Control& control) const;
    [[nodiscard]] double rightOf(const Control& control) const;
    [[nodiscard]] double widthOf(const Control& control) const;
    void setWidthOf(Control& control, double width) const;

    /// Whether the box is a graph to look at: no help panel, and no frame round another graph.
    [[nodiscard]] bool isChart() const;

    // Properties of the design.
    /// Left, top, width and height of the scale that the box has from its design.
    void setDesignScale(const QRectF& scale);
    void setBackColour(const QColor& colour);
    [[nodiscard]] QColor backColour() const { return palette().color(QPalette::Window); }
    /// No background of its own: for frames that only carry ticks and numbers.
    void setBare(bool bare);
    /// A thin outline.
    void setFramed(bool framed);
    /// A help panel that is drawn on: its texts stand beside what is drawn, and need no halo.
    void setPanel(bool panel) { panel_ = panel; }
    /// Of a scale that runs down from 0: the y of all operations is counted up from the lower border.
    void setCountsUp(bool countsUp) { countsUp_ = countsUp; }
    /// A frame that is never cleared gets the same ticks with every exercise; it keeps each once.
    void setKeepsOnce(bool keepsOnce) { keepsOnce_ = keepsOnce; }

protected:
    /// Texts of one line on the white of a graph are given a halo.
    void childEvent(QChildEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    friend class Figure;

    [[nodiscard]] double onScale(double y) const { return countsUp_ ? scale().turned(y) : y; }
    [[nodiscard]] double onScale(const LineEnd& end) const;
    void addLine(double x1, double y1, double x2, double y2, const QColor& colour);
    void add(Stroke stroke);
    void renewPicture();
    /// Paints on the box itself, or a picture of it, from a stroke on.
    void paintStrokes(QPainter& painter, std::size_t first) const;

    GraphScale scale_;
    bool hasScale_ = false;
    LineStyle style_ = LineStyle::Solid;
    int width_ = 1;
    bool bare_ = false;
    bool framed_ = false;
    bool panel_ = false;
    bool keepsOnce_ = false;
    bool countsUp_ = false;
    std::vector<Stroke> strokes_;
    // Of the figure that is being drawn, and of the last one.
    std::optional<Meaning> meaning_;
    std::size_t figure_ = 0;

    // What is painted already: the first `painted_` strokes.
    QPixmap picture_;
    std::size_t painted_ = 0;
};

/// While it lives, what is drawn on a box belongs to one figure. Within another one it is a part of that: the
/// outermost says what is drawn.
///
///     const Figure cross(graph, Meaning::Cross);
///     graph.Line(2, 3, 4, 3);
///     graph.Line(3, 2, 3, 4);
class Figure {
public:
    Figure(GraphBox& box, Meaning meaning);
    Figure(const Figure&) = delete;
    Figure& operator=(const Figure&) = delete;
    ~Figure();

private:
    GraphBox& box_;
    bool isOutermost_;
};

}  // namespace tavrune
