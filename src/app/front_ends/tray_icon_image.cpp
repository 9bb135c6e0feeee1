// Fits a status item's picture into the square icon that system trays show.
#include "app/front_ends/tray_icon_image.h"

#include <QPainter>

#include <algorithm>

QImage squareTrayImage(const QImage& picture)
{
    if (picture.isNull() || picture.width() == picture.height())
        return picture;
    const int side = std::max(picture.width(), picture.height());
    QImage square(side, side, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    // Both at ratio 1 while painting, so the offsets below are plain pixels.
    QImage source = picture;
    source.setDevicePixelRatio(1.0);
    {
        QPainter painter(&square);
        painter.drawImage(QPoint((side - picture.width()) / 2, (side - picture.height()) / 2), source);
    }
    square.setDevicePixelRatio(picture.devicePixelRatio());
    return square;
}
