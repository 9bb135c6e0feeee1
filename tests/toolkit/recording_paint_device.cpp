// The recording paint engine behind RecordingPaintDevice.
#include "toolkit/recording_paint_device.h"

#include <QTextItem>

#include <climits>
#include <cmath>
#include <numbers>

namespace {

class RecordingEngine : public QPaintEngine {
public:
    RecordingEngine()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }

    void updateState(const QPaintEngineState& changed) override
    {
        const auto dirty = changed.state();
        if (dirty & DirtyTransform)
            transform_ = changed.transform();
        if (dirty & DirtyBrush)
            brush_ = changed.brush();
        if (dirty & DirtyPen)
            pen_ = changed.pen();
        if (dirty & DirtyHints)
            antialiased_ = changed.renderHints().testFlag(QPainter::Antialiasing);
    }

    void drawRects(const QRectF* rects, int count) override
    {
        for (int i = 0; i < count; ++i) {
            DrawCall call = styled(DrawCall::Rect);
            call.rect = transform_.mapRect(rects[i]);
            calls_.push_back(call);
        }
    }
    void drawRects(const QRect* rects, int count) override
    {
        for (int i = 0; i < count; ++i) {
            const QRectF rect(rects[i]);
            drawRects(&rect, 1);
        }
    }
    void drawPath(const QPainterPath& path) override
    {
        DrawCall call = styled(DrawCall::Path);
        call.path = transform_.map(path);
        call.rect = call.path.boundingRect();
        calls_.push_back(call);
    }
    // A line is recorded as a path from its first point to its second.
    void drawLines(const QLineF* lines, int count) override
    {
        for (int i = 0; i < count; ++i) {
            QPainterPath path(lines[i].p1());
            path.lineTo(lines[i].p2());
            drawPath(path);
        }
    }
    void drawTextItem(const QPointF& baseline, const QTextItem& item) override
    {
        DrawCall call = styled(DrawCall::Text);
        call.text = item.text();
        call.font = item.font();
        call.rect = transform_.mapRect(
            QRectF(baseline.x(), baseline.y() - item.ascent(), item.width(), item.ascent() + item.descent()));
        calls_.push_back(call);
    }
    void drawImage(const QRectF& rect, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
        DrawCall call = styled(DrawCall::Image);
        call.rect = transform_.mapRect(rect);
        calls_.push_back(call);
    }
    void drawPixmap(const QRectF& rect, const QPixmap&, const QRectF&) override
    {
        DrawCall call = styled(DrawCall::Image);
        call.rect = transform_.mapRect(rect);
        calls_.push_back(call);
    }

    std::vector<DrawCall> calls_;

private:
    DrawCall styled(DrawCall::Kind kind) const
    {
        DrawCall call;
        call.kind = kind;
        if (brush_.style() != Qt::NoBrush)
            call.brush = brush_.color();
        if (pen_.style() != Qt::NoPen) {
            call.pen = pen_.color();
            call.penWidth = pen_.widthF();
        }
        call.antialiased = antialiased_;
        return call;
    }

    QTransform transform_;
    QBrush brush_;
    QPen pen_;
    bool antialiased_ = false;
};

} // namespace

RecordingPaintDevice::RecordingPaintDevice(QSize size)
    : size_(size)
    , engine_(std::make_unique<RecordingEngine>())
{}

RecordingPaintDevice::~RecordingPaintDevice() = default;

QPaintEngine* RecordingPaintDevice::paintEngine() const
{
    return engine_.get();
}

const std::vector<DrawCall>& RecordingPaintDevice::calls() const
{
    return static_cast<const RecordingEngine*>(engine_.get())->calls_;
}

std::vector<DrawCall> RecordingPaintDevice::calls(DrawCall::Kind kind) const
{
    std::vector<DrawCall> out;
    for (const DrawCall& call : calls())
        if (call.kind == kind)
            out.push_back(call);
    return out;
}

int RecordingPaintDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return size_.width();
    case PdmHeight:
        return size_.height();
    case PdmWidthMM:
        return qRound(size_.width() * 25.4 / 72);
    case PdmHeightMM:
        return qRound(size_.height() * 25.4 / 72);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 72;
    case PdmNumColors:
        return INT_MAX;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

Wedge wedgeOf(const QPainterPath& path, const QPointF& centre)
{
    const auto angleOf = [&centre](const QPointF& point) {
        const QPointF ray = point - centre;
        const double degrees = std::atan2(ray.y(), ray.x()) * 180 / std::numbers::pi;
        return degrees < 0 ? degrees + 360 : degrees;
    };
    // Element 0 is the centre, element 1 the arc's start; the arc ends at the last point
    // before the line back to the centre.
    int last = path.elementCount() - 1;
    while (last > 1 && QPointF(path.elementAt(last)) == centre)
        --last;
    const double start = angleOf(path.elementAt(1));
    const double end = angleOf(path.elementAt(last));

    // The sign of the polygon's area tells the direction.
    const QPolygonF polygon = path.toFillPolygon();
    double twiceArea = 0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF& a = polygon[i];
        const QPointF& b = polygon[(i + 1) % polygon.size()];
        twiceArea += a.x() * b.y() - b.x() * a.y();
    }
    const double counterClockwise = std::fmod(end - start + 360, 360);
    return {start, twiceArea >= 0 ? counterClockwise : counterClockwise - 360};
}
