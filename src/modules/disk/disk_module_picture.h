// The Disk picture: activity per disk or for all disks in the bar, all together in the menu's graph.
#pragma once

#include "collect/disk_sample.h"
#include "collect/storage_descriptions.h"
#include "modules/disk/image_disk_bar.h"
#include "modules/storage_module_picture.h"

using DiskModulePictureBase =
    StorageModulePictureOf<DiskPictureSettings, diskPictureSettings, ImageDiskBar, DiskSample>;

class DiskModulePicture final : public DiskModulePictureBase {
public:
    explicit DiskModulePicture(MenuModuleDelegate* delegate);

    // The disks to show.
    void setDiskBaseDict(const DiskBaseDict& diskBaseDict) { diskBaseDict_ = diskBaseDict; }
    const DiskBaseDict& diskBaseDict() const { return diskBaseDict_; }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(volumes)
        setDiskBaseDict(disks);
    }
    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;

private:
    DiskBaseDict diskBaseDict_;
};
