// Kind pictures of volumes and disks.
#include "modules/volume/storage_pictures.h"

#include <algorithm>

namespace {

constexpr double kPictureSize = 14;
constexpr double kPictureOpacity = 0.3;

} // namespace

QString volumePictureKey(VolumeIconKind kind, const QString& bsdName, bool removable)
{
    if (kind == VolumeIconKind::Network)
        return QStringLiteral("M04");
    if (bsdName.startsWith(QLatin1String("sr")))
        return QStringLiteral("M05");
    if (bsdName.startsWith(QLatin1String("loop")))
        return QStringLiteral("M06");
    if (kind == VolumeIconKind::External)
        return removable ? QStringLiteral("M03") : QStringLiteral("M02");
    return QStringLiteral("M01");
}

QString diskMenuPictureKey(VolumeIconKind kind)
{
    return kind == VolumeIconKind::Internal ? QStringLiteral("O31") : QStringLiteral("O32");
}

void drawBackgroundPicture(QPainter& painter, const QImage& picture, double left, double span, double bottom,
                           double top)
{
    const double side = std::min({kPictureSize, span, top - bottom});
    if (picture.isNull() || side <= 0)
        return;
    painter.save();
    painter.setOpacity(kPictureOpacity);
    // Undo the y-up flip locally so the picture stands the right way up.
    painter.translate(left, bottom + (top - bottom + side) / 2);
    painter.scale(1, -1);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(0, 0, side, side), picture);
    painter.restore();
}
