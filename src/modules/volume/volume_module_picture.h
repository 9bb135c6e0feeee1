// The Volume picture: use per volume or for all volumes in the bar, all together in the menu's graph.
#pragma once

#include "collect/disk_sample.h"
#include "collect/storage_descriptions.h"
#include "modules/storage_module_picture.h"
#include "modules/volume/image_volume_bar.h"

#include <memory>

using VolumeModulePictureBase =
    StorageModulePictureOf<VolumePictureSettings, volumePictureSettings, ImageVolumeBar, VolumeSample>;

class VolumeModulePicture final : public VolumeModulePictureBase {
public:
    explicit VolumeModulePicture(MenuModuleDelegate* delegate);

    // The volumes to show.
    void setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict);
    const VolumeBaseDict& volumeBaseDict() const { return *volumeBaseDict_; }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(disks)
        setVolumeBaseDict(std::move(volumes));
    }
    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;

private:
    std::shared_ptr<const VolumeBaseDict> volumeBaseDict_;
};
