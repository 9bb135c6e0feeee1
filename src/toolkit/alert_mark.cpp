// Drawing the alert mark over a finished picture.
#include "toolkit/alert_mark.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace TvlClasses {

namespace {

// A third of a 20-point bar: seen at a glance, yet leaving the figures under it readable.
constexpr qreal kMarkPoints = 7;

} // namespace

QImage tvlMarkedForAlert(const QImage& picture)
{
    if (picture.isNull())
        return picture;
    QImage marked = picture.format() == QImage::Format_ARGB32_Premultiplied
                        ? picture.copy()
                        : picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    marked.setDevicePixelRatio(picture.devicePixelRatio());
    const qreal ratio = marked.devicePixelRatio();
    const qreal width = marked.width() / ratio;
    const qreal side = std::min({kMarkPoints, width, marked.height() / ratio});
    QPainterPath corner;
    corner.moveTo(width - side, 0);
    corner.lineTo(width, 0);
    corner.lineTo(width, side);
    corner.closeSubpath();
    QPainter painter(&marked);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(corner, QColor(Qt::red));
    return marked;
}

} // namespace TvlClasses
