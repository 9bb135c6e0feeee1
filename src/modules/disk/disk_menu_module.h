// The Disk status item: its picture in the bar, and its menu with the combined graph and a block
// per disk.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/disk/disk_menu_controller.h"
#include "modules/disk/image_disk_bar.h"
#include "modules/storage_menu_module.h"

using DiskMenuModuleBase =
    StorageMenuModuleOf<DiskPictureSettings, diskPictureSettings, ImageDiskBar, DiskSample, Disk_MenuController>;

class Disk_MenuModule final : public DiskMenuModuleBase {
    Q_OBJECT
public:
    explicit Disk_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    // The disks to show; the menu's blocks follow at its next opening.
    void setDiskBaseDict(const DiskBaseDict& diskBaseDict);
    const DiskBaseDict& diskBaseDict() const { return diskBaseDict_; }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(volumes)
        setDiskBaseDict(disks);
    }
    void refreshBar() override;

protected:
    void drawBaseStatusBar() override;

private:
    DiskBaseDict diskBaseDict_;
};
