// Fills the Volume panel; the descriptions are fixed per menu, the space follows each tick.
#include "modules/volume/volume_menu_controller.h"

#include "modules/volume/volume_menu_rows.h"

#include <QLabel>
#include <QPixmap>

namespace {

// The kind pictures at the size the menu shows them.
constexpr double kPictureSize = 36;

QLabel* pictureLabel(QWidget* parent, const ThemePicture& picture)
{
    auto* label = new QLabel(parent);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedWidth(static_cast<int>(kPictureSize));
    if (!picture.image.isNull()) {
        const qreal ratio = parent->devicePixelRatioF();
        QImage image = picture.image.scaled(QSizeF(kPictureSize * ratio, kPictureSize * ratio).toSize(),
                                            Qt::KeepAspectRatio, Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
        label->setPixmap(QPixmap::fromImage(image));
    }
    return label;
}

} // namespace

Volume_MenuController::Volume_MenuController(QWidget* parent)
    : StoragePanel(parent)
{}

void Volume_MenuController::loadBaseData(const StoragePictures& pictures, const VolumeBaseDict& volumeBaseDict)
{
    if (!startBlocks(volumeBaseDict.empty(), "No volume mounted"))
        return;
    for (const auto& [path, volume] : volumeBaseDict) {
        const StoragePicture kind = volumePicture(volume.iconKind, volume.bsdName, volume.isRemovable);
        addBlock(
            path, pictureLabel(this, pictures[kind]),
            {new QLabel(volume.volumeName, this), new QLabel(volumeFactsText(path, volume), this), new QLabel(this)});
    }
}

void Volume_MenuController::replaceData(const History<VolumeSample>& resumeArray)
{
    static const VolumeSample noSample;
    const VolumeSample& newest = resumeArray.empty() ? noSample : resumeArray.back();
    for (const Block& block : blocks_)
        block.lines[2]->setText(volumeUsageText(volumeUsageOf(newest, block.key)));
}
