#include "graph/graph_box.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include <QChildEvent>
#include <QPainter>

#include "controls/label.h"
#include "graph/clipping.h"

namespace tavrune {
namespace {

constexpr double kTwipsToAUnit = 15;
const QColor kOutline(96, 96, 96);
constexpr double kFocusRing = 2;

/// From the scale of a stroke to the pixels of the device.
class Mapping {
public:
    Mapping(const GraphScale& scale, QSizeF pixels)
        : origin_(scale.x1, scale.y1),
          perX_(pixels.width() / (static_cast<double>(scale.x2) - scale.x1)),
          perY_(pixels.height() / (static_cast<double>(scale.y2) - scale.y1)) {}

    [[nodiscard]] QPointF operator()(double x, double y) const { return {ofX(x), (y - origin_.y()) * perY_}; }
    [[nodiscard]] double ofX(double x) const { return (x - origin_.x()) * perX_; }

private:
    QPointF origin_;
    double perX_;
    double perY_;
};

/// The first pixel of a stroke `thickness` pixels wide round `x`, kept on a box of `size` pixels: a line on
/// the border itself is seen.
int firstPixel(double x, int thickness, double size) {
    const int first = static_cast<int>(std::floor(x - (thickness - 1) / 2.0));
    const bool isOnBorder = x <= size + 0.5;
    return isOnBorder ? std::min(first, static_cast<int>(size) - thickness) : first;
}

/// Paints strokes in pixels of the device.
class StrokePainter {
public:
    StrokePainter(QPainter& painter, QSizeF pixels, QSizeF units, double pixelsToAUnit)
        : painter_(painter), pixels_(pixels), units_(units), pixelsToAUnit_(pixelsToAUnit) {}

    void paint(const Stroke& stroke) {
        const Mapping map(stroke.scale, pixels_);
        const int thickness = std::max(1, static_cast<int>(std::lround(stroke.width * pixelsToAUnit_)));
        if (stroke.kind == Stroke::Kind::Point) {
            endCurve();
            paintPoint(stroke, thickness);
            return;
        }
        const double margin = 2.0 * thickness;
        const QRectF bounds = QRectF(QPointF(0, 0), pixels_).adjusted(-margin, -margin, margin, margin);
        const auto line = clipped(QLineF(map(stroke.x1, stroke.y1), map(stroke.x2, stroke.y2)), bounds);
        if (line) {
            paintLine(*line, stroke, thickness);
        }
    }

    /// Paints what is still held back of a curve.
    void endCurve() {
        if (curve_.size() < 2) {
            return;
        }
        painter_.setPen(curvePen_);
        painter_.setRenderHint(QPainter::Antialiasing, true);
        painter_.drawPolyline(curve_);
        painter_.setRenderHint(QPainter::Antialiasing, false);
        curve_.clear();
    }

private:
    QPainter& painter_;
    QSizeF pixels_;
    QSizeF units_;
    double pixelsToAUnit_;
    // The pieces of a curve are painted in one go, without a seam at each of their many ends.
    QPolygonF curve_;
    QPen curvePen_;

    void paintPoint(const Stroke& stroke, int thickness) {
        const QPointF at = Mapping(stroke.scale, pixels_)(stroke.x1, stroke.y1);
        const QRectF near =
            QRectF(QPointF(0, 0), pixels_).adjusted(-thickness, -thickness, thickness, thickness);
        if (!near.contains(at)) {
            return;
        }
        QRect point(firstPixel(at.x(), thickness, pixels_.width()),
                    firstPixel(at.y(), thickness, pixels_.height()), thickness, thickness);
        if (stroke.width == 1 && stroke.meaning == Meaning::TickOfX) {
            const auto [top, below] = besideAxis(stroke, thickness, &QPointF::y, &QSizeF::height);
            point.setTop(top);
            point.setBottom(below - 1);
        } else if (stroke.width == 1 && stroke.meaning == Meaning::TickOfY) {
            const auto [left, beyond] = besideAxis(stroke, thickness, &QPointF::x, &QSizeF::width);
            point.setLeft(left);
            point.setRight(beyond - 1);
        }
        painter_.fillRect(point, stroke.colour);
    }

    /// The first pixel of a point of a tick, and the one after its last: it stands as many whole units off
    /// the axis, which is at 0, as in the design, so that what touches there does so at every zoom.
    [[nodiscard]] std::pair<int, int> besideAxis(const Stroke& stroke, int thickness,
                                                 double (QPointF::*along)() const,
                                                 double (QSizeF::*sizeOf)() const) const {
        const auto first = [&](double x, double y, QSizeF size, int pen) {
            return firstPixel((Mapping(stroke.scale, size)(x, y).*along)(), pen, (size.*sizeOf)());
        };
        const int units = first(stroke.x1, stroke.y1, units_, 1) - first(0, 0, units_, 1);
        const int axis = first(0, 0, pixels_, thickness);
        const double from =
            units > 0 ? axis + thickness + (units - 1) * pixelsToAUnit_ : axis + units * pixelsToAUnit_;
        return {qRound(from), qRound(from + pixelsToAUnit_)};
    }

    void paintLine(const QLineF& line, const Stroke& stroke, int thickness) {
        const bool isLevel = stroke.y1 == stroke.y2;
        const bool isUpright = stroke.x1 == stroke.x2;
        const QPen pen(stroke.colour, thickness,
                       stroke.style == LineStyle::Dotted ? Qt::DotLine : Qt::SolidLine, Qt::FlatCap,
                       Qt::RoundJoin);
        if (!isLevel && !isUpright) {
            if (curve_.isEmpty() || curve_.last() != line.p1() || curvePen_ != pen) {
                endCurve();
                curve_ << line.p1();
                curvePen_ = pen;
            }
            curve_ << line.p2();
            return;
        }
        endCurve();
        painter_.setPen(pen);
        // What runs along the axes fills whole pixels.
        const auto middle = [thickness](int first) { return first + thickness / 2.0; };
        if (isLevel) {
            const double y = middle(firstPixel(line.y1(), thickness, pixels_.height()));
            paintAligned(QLineF(std::floor(std::min(line.x1(), line.x2())), y,
                                std::floor(std::max(line.x1(), line.x2())) + 1, y),
                         stroke, thickness);
        } else {
            const double x = middle(firstPixel(line.x1(), thickness, pixels_.width()));
            paintAligned(QLineF(x, std::floor(std::min(line.y1(), line.y2())), x,
                                std::floor(std::max(line.y1(), line.y2())) + 1),
                         stroke, thickness);
        }
    }

    void paintAligned(const QLineF& line, const Stroke& stroke, int thickness) {
        if (stroke.style == LineStyle::Dotted) {
            painter_.drawLine(line);
            return;
        }
        const double half = thickness / 2.0;
        const QRectF filled = line.dy() == 0 ? QRectF(line.x1(), line.y1() - half, line.dx(), thickness)
                                             : QRectF(line.x1() - half, line.y1(), thickness, line.dy());
        painter_.fillRect(filled, stroke.colour);
    }
};

}  // namespace

bool Stroke::operator==(const Stroke& other) const {
    const auto drawn = [](const Stroke& s) {
        return std::tie(s.kind, s.x1, s.y1, s.x2, s.y2, s.colour, s.style, s.width, s.scale);
    };
    return drawn(*this) == drawn(other);
}

GraphBox::GraphBox(QWidget* parent) : QWidget(parent), Control(this) {
    setAutoFillBackground(true);
    setPaletteColour(QPalette::WindowText, kBlack);
    setBackColour(kWhite);
}

void GraphBox::Scale(double x1, double y1, double x2, double y2) {
    scale_ = {static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2), static_cast<float>(y2)};
    hasScale_ = true;
}

void GraphBox::Line(double x1, double y1, double x2, double y2) { Line(x1, y1, x2, y2, kBlack); }

void GraphBox::Line(double x1, double y1, double x2, double y2, const QColor& colour) {
    addLine(x1, onScale(y1), x2, onScale(y2), colour);
}

void GraphBox::Line(const LineEnd& from, const LineEnd& to, const QColor& colour) {
    addLine(from.x, onScale(from), to.x, onScale(to), colour);
}

double GraphBox::onScale(const LineEnd& end) const {
    // Turned first: the last digits of what is moved up are those of the box.
    return countsUp_ ? onScale(end.y) - end.above : end.y + end.above;
}

void GraphBox::addLine(double x1, double y1, double x2, double y2, const QColor& colour) {
    add({Stroke::Kind::Line, static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2),
         static_cast<float>(y2), colour, style_, width_, scale()});
}

void GraphBox::PSet(double x, double y) { PSet(x, y, kBlack); }

void GraphBox::PSet(double x, double y, const QColor& colour) {
    const auto onBox = static_cast<float>(onScale(y));
    add({Stroke::Kind::Point, static_cast<float>(x), onBox, static_cast<float>(x), onBox, colour,
         LineStyle::Solid, width_, scale(), Meaning::Point});
}

void GraphBox::Cls() {
    strokes_.clear();
    picture_ = QPixmap();
    update();
}

GraphScale GraphBox::scale() const {
    if (hasScale_) {
        return scale_;
    }
    const QRectF box = Control::place();
    return {0, 0, static_cast<float>(box.width() * kTwipsToAUnit),
            static_cast<float>(box.height() * kTwipsToAUnit)};
}

void GraphBox::place(Control& control, double x, double y) const {
    const QPointF corner = Mapping(scale(), Control::place().size())(x, onScale(y));
    QRectF moved = control.place();
    moved.moveTopLeft(corner);
    control.setPlace(moved);
}

void GraphBox::placeLeft(Control& control, double x) const {
    control.setLeft(Mapping(scale(), Control::place().size()).ofX(x));
}

double GraphBox::leftOf(const Control& control) const {
    const GraphScale s = scale();
    return s.x1 + control.place().left() * (s.x2 - s.x1) / Control::place().width();
}

double GraphBox::rightOf(const Control& control) const { return leftOf(control) + widthOf(control); }

double GraphBox::widthOf(const Control& control) const {
    const GraphScale s = scale();
    return control.place().width() * (s.x2 - s.x1) / Control::place().width();
}

void GraphBox::setWidthOf(Control& control, double width) const {
    const GraphScale s = scale();
    control.setWidth(width * Control::place().width() / (s.x2 - s.x1));
}

void GraphBox::setDesignScale(const QRectF& scale) {
    Scale(scale.left(), scale.top(), scale.right(), scale.bottom());
}

bool GraphBox::isChart() const {
    const QObjectList& all = children();
    return !panel_ && std::none_of(all.begin(), all.end(), [](const QObject* child) {
        return child->isWidgetType() && qobject_cast<const Label*>(child) == nullptr;
    });
}

void GraphBox::setBackColour(const QColor& colour) { setPaletteColour(QPalette::Window, colour); }

void GraphBox::setBare(bool bare) {
    bare_ = bare;
    setAutoFillBackground(!bare);
}

void GraphBox::setFramed(bool framed) {
    framed_ = framed;
    update();
}

void GraphBox::add(Stroke stroke) {
    if (meaning_) {
        stroke.meaning = *meaning_;
        stroke.figure = figure_;
    }
    if (keepsOnce_ && std::find(strokes_.begin(), strokes_.end(), stroke) != strokes_.end()) {
        return;
    }
    strokes_.push_back(stroke);
    update();
}

void GraphBox::renewPicture() {
    const double ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (picture_.size() != pixels) {
        picture_ = QPixmap(pixels);
        picture_.fill(Qt::transparent);
        painted_ = 0;
    }
    picture_.setDevicePixelRatio(ratio);
    if (painted_ == strokes_.size()) {
        return;
    }
    QPainter painter(&picture_);
    paintStrokes(painter, std::exchange(painted_, strokes_.size()));
}

void GraphBox::paintStrokes(QPainter& painter, std::size_t first) const {
    const double ratio = devicePixelRatioF();
    const QPointF corner = painter.deviceTransform().map(QPointF(0, 0));
    painter.scale(1 / ratio, 1 / ratio);
    // Between two pixels of the screen nothing would be crisp.
    painter.translate(QPointF(qRound(corner.x()), qRound(corner.y())) - corner);
    StrokePainter strokePainter(painter, (QSizeF(size()) * ratio).toSize(), Control::place().size(),
                                ratio * zoom());
    for (std::size_t i = first; i < strokes_.size(); ++i) {
        strokePainter.paint(strokes_[i]);
    }
    strokePainter.endCurve();
}

void GraphBox::childEvent(QChildEvent* event) {
    auto* const label = event->polished() ? qobject_cast<Label*>(event->child()) : nullptr;
    if (label != nullptr && !bare_ && !panel_ && !label->wordWrap()) {
        label->setHaloed(true);
    }
}

void GraphBox::paintEvent(QPaintEvent* /*event*/) {
    const bool hasPicture = strokes_.size() > kFewStrokes;
    if (hasPicture) {
        renewPicture();
    }
    if (framed_) {
        drawOutline(*this, zoom(), kOutline);
    }
    if (hasPicture) {
        QPainter(this).drawPixmap(0, 0, picture_);
    } else if (!strokes_.empty()) {
        // A picture of the whole box costs more than a few lines.
        QPainter painter(this);
        paintStrokes(painter, 0);
    }
    if (hasFocus()) {
        QPainter painter(this);
        drawOutline(painter, rect(), kFocusRing * zoom(), palette().color(QPalette::Highlight));
    }
}

void GraphBox::mousePressEvent(QMouseEvent* /*event*/) {
    // What is not ignored does not reach the page.
}

Figure::Figure(GraphBox& box, Meaning meaning) : box_(box), isOutermost_(!box.meaning_) {
    if (isOutermost_) {
        box_.meaning_ = meaning;
        ++box_.figure_;
    }
}

Figure::~Figure() {
    if (isOutermost_) {
        box_.meaning_.reset();
    }
}

}  // namespace tavrune
