#include "support/painting.h"

#include <cmath>

#include <QEvent>
#include <QPaintEngine>
#include <QPainter>

#include "numeric/text.h"
#include "support/digest.h"
#include "support/event_count.h"
#include "support/student.h"

namespace tavrune::test {
namespace {

/// More of a path than this is told by its digest.
constexpr int kReadable = 6;

std::string words(double number) { return NumberText(std::round(number * 100) / 100); }
std::string words(const QPointF& point) { return words(point.x()) + " " + words(point.y()); }
std::string words(const QRectF& box) {
    return words(box.topLeft()) + " " + words(box.width()) + " " + words(box.height());
}
std::string words(const QColor& colour) {
    return colour.name(colour.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb).toStdString();
}

std::string words(const QPolygonF& points) {
    std::string text;
    for (const QPointF& point : points) {
        text += (text.empty() ? "" : ", ") + words(point);
    }
    return points.size() <= kReadable
               ? text
               : words(points.boundingRect()) + ", " + std::to_string(points.size()) + " as " + digest(text);
}

/// Paints nothing, and keeps what would be painted.
class Keeper : public QPaintEngine {
public:
    Keeper() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    [[nodiscard]] Type type() const override { return User; }

    void drawRects(const QRect* boxes, int count) override {
        for (int i = 0; i < count; ++i) {
            keep("fill", words(transform().mapRect(QRectF(boxes[i]))));
        }
    }
    void drawRects(const QRectF* boxes, int count) override {
        for (int i = 0; i < count; ++i) {
            keep("fill", words(transform().mapRect(boxes[i])));
        }
    }
    void drawLines(const QLineF* drawn, int count) override {
        for (int i = 0; i < count; ++i) {
            keep("line",
                 words(transform().map(drawn[i].p1())) + ", " + words(transform().map(drawn[i].p2())));
        }
    }
    void drawPixmap(const QRectF& box, const QPixmap& /*pixmap*/, const QRectF& /*part*/) override {
        lines.push_back("picture " + words(transform().mapRect(box)));
    }
    void drawPath(const QPainterPath& path) override {
        QPolygonF points;
        for (int i = 0; i < path.elementCount(); ++i) {
            points << transform().map(QPointF(path.elementAt(i)));
        }
        keep("path", words(points));
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        const QPolygonF all(QList<QPointF>(points, points + count));
        keep(mode == PolylineMode ? "curve" : "polygon", words(transform().map(all)));
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QPointF place = transform().map(at);
        // As the raster engine rounds, in its sixty-fourths of a pixel.
        texts.push_back({item.text(), place.x(), static_cast<int>(std::floor(place.y() + 31.0 / 64)),
                         painter()->pen().color()});
        const QFont font = item.font();
        lines.push_back("text \"" + item.text().toStdString() + "\" at " + words(place) + ", " +
                        std::to_string(font.pixelSize()) + " high" + (font.bold() ? ", bold" : "") +
                        (font.underline() ? ", underlined" : "") + ", " + words(painter()->pen().color()));
    }

    std::vector<PaintedText> texts;
    std::vector<std::string> lines;

private:
    [[nodiscard]] QTransform transform() const { return painter()->deviceTransform(); }

    void keep(const std::string& what, const std::string& where) {
        const QPen pen = painter()->pen();
        const QBrush brush = painter()->brush();
        std::string line = what + " " + where;
        if (what != "line" && what != "curve" && brush.style() != Qt::NoBrush) {
            line += " " + words(brush.color());
        }
        if (pen.style() != Qt::NoPen) {
            line += ", pen " + words(pen.widthF()) + " " + words(pen.color()) +
                    (pen.style() == Qt::DotLine ? " dotted" : "");
        }
        lines.push_back(line + (painter()->testRenderHint(QPainter::Antialiasing) ? ", smooth" : ""));
    }
};

class KeepingDevice : public QPaintDevice {
public:
    explicit KeepingDevice(const QWidget& like) : like_(like) {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &keeper; }

    mutable Keeper keeper;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric asked) const override {
        switch (asked) {
            case PdmWidth:
                return like_.width();
            case PdmHeight:
                return like_.height();
            case PdmDpiX:
            case PdmPhysicalDpiX:
                return like_.logicalDpiX();
            case PdmDpiY:
            case PdmPhysicalDpiY:
                return like_.logicalDpiY();
            case PdmDevicePixelRatio:
                return 1;
            default:
                return QPaintDevice::metric(asked);
        }
    }

private:
    const QWidget& like_;
};

}  // namespace

std::vector<PaintedText> paintedTexts(QWidget& widget) {
    KeepingDevice device(widget);
    widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    return device.keeper.texts;
}

bool isPaintedAfter(QWidget& shown, const std::function<void()>& happen) {
    settle();
    const EventCount paints(shown, QEvent::Paint);
    happen();
    settle();
    return paints.count() > 0;
}

std::vector<std::string> painting(QWidget& widget) {
    KeepingDevice device(widget);
    widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    return device.keeper.lines;
}

}  // namespace tavrune::test
