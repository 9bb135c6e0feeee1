// Kind pictures of volumes and disks, and the settings both pictures share.
#include "modules/storage_pictures.h"

#include <QPixmap>

#include <algorithm>

namespace {

constexpr double kPictureSize = 14;
constexpr double kPictureOpacity = 0.3;

constexpr const char* kPictureKeys[] = {"M01", "M02", "M03", "M04", "M05", "M06", "O31", "O32"};

} // namespace

StoragePicture volumePicture(VolumeIconKind kind, const QString& bsdName, bool removable)
{
    if (kind == VolumeIconKind::Network)
        return StoragePicture::Network;
    if (bsdName.startsWith(QLatin1String("sr")))
        return StoragePicture::Optical;
    if (bsdName.startsWith(QLatin1String("loop")))
        return StoragePicture::DiskImage;
    if (kind == VolumeIconKind::External)
        return removable ? StoragePicture::Removable : StoragePicture::External;
    return StoragePicture::Internal;
}

StoragePicture diskMenuPicture(VolumeIconKind kind)
{
    return kind == VolumeIconKind::Internal ? StoragePicture::MenuInternal : StoragePicture::MenuExternal;
}

StorageBasics storageBasics(const ModuleDefaults& defaults, const char* showKey, const char* pictureKey,
                            const char* orderKey, const char* eachKey, const char* iconKey)
{
    StorageBasics basics;
    static_cast<PictureBasics&>(basics) = pictureBasics(defaults, showKey, pictureKey, orderKey);
    basics.eachSet = defaults.boolValue(QLatin1String(eachKey));
    basics.backgroundIcons = defaults.boolValue(QLatin1String(iconKey));
    for (std::size_t i = 0; i < basics.pictures.pictures.size(); ++i)
        basics.pictures.pictures[i] = defaults.picture(QLatin1String(kPictureKeys[i]));
    return basics;
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

QIcon storageMenuIcon(const ThemePicture& picture)
{
    if (picture.image.isNull())
        return {};
    QImage image = picture.image;
    image.setDevicePixelRatio(image.width() / std::max(1.0, picture.size.width()));
    return QIcon(QPixmap::fromImage(image));
}
