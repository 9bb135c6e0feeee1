// Drawing a theme picture at twice its point size and packing it as PNG bytes.
#include "picture_canvas.h"

#include "prefs/theme_color.h"

#include <QBuffer>
#include <QImage>

namespace {

constexpr qreal kPixelsPerPoint = 2.0;
// 144 dots per inch, so viewers that honour the PNG's density show it at its point size.
constexpr int kDotsPerMeter = 5669;

} // namespace

QColor PictureInks::accent(const char* key) const
{
    QColor color = TvlClasses::retColorFromArray(theme.value(QLatin1String(key)));
    color.setAlphaF(1.0f);
    return color;
}

PictureInks inksForTheme(const QVariantMap& theme)
{
    const bool dark = theme.value(QStringLiteral("_ForDarkAppearance")).toBool();
    PictureInks inks;
    inks.ink = dark ? QColor::fromRgbF(0.93f, 0.93f, 0.94f) : QColor::fromRgbF(0.16f, 0.17f, 0.19f);
    inks.paper = dark ? QColor::fromRgbF(0.24f, 0.25f, 0.28f) : QColor::fromRgbF(0.99f, 0.99f, 0.99f);
    inks.muted = dark ? QColor::fromRgbF(0.62f, 0.63f, 0.66f) : QColor::fromRgbF(0.55f, 0.56f, 0.58f);
    inks.theme = theme;
    return inks;
}

QByteArray drawPicture(QSizeF points, const std::function<void(QPainter&)>& draw)
{
    QImage image((points * kPixelsPerPoint).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDotsPerMeterX(kDotsPerMeter);
    image.setDotsPerMeterY(kDotsPerMeter);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(kPixelsPerPoint, kPixelsPerPoint);
        draw(painter);
    }
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

QPen outlinePen(const QColor& color, qreal width)
{
    QPen pen(color, width);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::RoundCap);
    return pen;
}
