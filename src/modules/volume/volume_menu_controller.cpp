// Fills the Volume panel; the descriptions are fixed per menu, the space follows each tick.
#include "modules/volume/volume_menu_controller.h"

#include "modules/volume/volume_menu_rows.h"
#include "toolkit/localization.h"

#include <QLabel>

namespace {

// The kind pictures at the size the menu shows them.
constexpr double kPictureSize = 36;

} // namespace

template <>
void Volume_MenuController::loadBaseData(const StoragePictures& pictures, const VolumeBaseDict& volumeBaseDict)
{
    if (!startBlocks(volumeBaseDict.empty(), Tarvel::textKey("No volume mounted")))
        return;
    for (const auto& [path, volume] : volumeBaseDict) {
        const StoragePicture kind = volumePicture(volume.iconKind, volume.bsdName, volume.isRemovable);
        addBlock(
            path, pictureLabel(pictures[kind], kPictureSize),
            {new QLabel(volume.volumeName, this), new QLabel(volumeFactsText(path, volume), this), new QLabel(this)});
    }
}

template <> void Volume_MenuController::replaceData(const History<VolumeSample>& resumeArray)
{
    static const VolumeSample noSample;
    const VolumeSample& newest = resumeArray.empty() ? noSample : resumeArray.back();
    for (const Block& block : blocks_)
        block.lines[2]->setText(volumeUsageText(volumeUsageOf(newest, block.key)));
}
