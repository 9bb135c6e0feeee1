// The y-up point canvas and the few operations that must undo its flip locally.
#include "toolkit/point_canvas.h"

#include <cmath>

namespace TvlClasses {

namespace {

// Fonts are sized by the device's logical resolution; 72 dpi makes a point one unit.
constexpr int kDotsPerMeterAt72Dpi = 2835;

QImage blankPicture(QSizeF size, qreal devicePixelRatio)
{
    const int width = static_cast<int>(std::ceil(size.width() * devicePixelRatio));
    const int height = static_cast<int>(std::ceil(size.height() * devicePixelRatio));
    if (width <= 0 || height <= 0)
        return QImage();
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.setDotsPerMeterX(kDotsPerMeterAt72Dpi);
    image.setDotsPerMeterY(kDotsPerMeterAt72Dpi);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

PointCanvas::PointCanvas(QSizeF size, qreal devicePixelRatio)
    : image_(blankPicture(size, devicePixelRatio))
{
    if (image_.isNull())
        return;
    painter_.begin(&image_);
    flipToPoints(painter_, size.height());
}

QImage PointCanvas::takeImage()
{
    if (painter_.isActive())
        painter_.end();
    return std::move(image_);
}

void PointCanvas::flipToPoints(QPainter& painter, double heightInPoints)
{
    painter.translate(0, heightInPoints);
    painter.scale(1, -1);
}

QFontMetricsF pointFontMetrics(const QFont& font)
{
    QImage reference(1, 1, QImage::Format_ARGB32_Premultiplied);
    reference.setDotsPerMeterX(kDotsPerMeterAt72Dpi);
    reference.setDotsPerMeterY(kDotsPerMeterAt72Dpi);
    return QFontMetricsF(font, &reference);
}

void drawImageUpright(QPainter& painter, const QImage& image, const QRectF& frame)
{
    if (image.isNull() || frame.isEmpty())
        return;
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setOpacity(1.0);
    painter.translate(frame.x(), frame.y() + frame.height());
    painter.scale(1, -1);
    painter.drawImage(QRectF(0, 0, frame.width(), frame.height()), image);
    painter.restore();
}

} // namespace TvlClasses
