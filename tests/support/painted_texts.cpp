#include "support/painted_texts.h"

#include <cmath>

#include <QPaintEngine>
#include <QPainter>

namespace tavrune::test {
namespace {

/// Paints nothing, and keeps where texts would stand.
class TextKeeper : public QPaintEngine {
public:
    TextKeeper() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*box*/, const QPixmap& /*pixmap*/, const QRectF& /*part*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    [[nodiscard]] Type type() const override { return User; }

    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QPointF place = painter()->deviceTransform().map(at);
        // As the raster engine rounds, in its sixty-fourths of a pixel.
        texts.push_back({item.text(), place.x(), static_cast<int>(std::floor(place.y() + 31.0 / 64)),
                         painter()->pen().color()});
    }

    std::vector<PaintedText> texts;
};

class TextDevice : public QPaintDevice {
public:
    explicit TextDevice(const QWidget& like) : like_(like) {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &keeper; }

    mutable TextKeeper keeper;

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
    TextDevice device(widget);
    widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    return device.keeper.texts;
}

}  // namespace tavrune::test
