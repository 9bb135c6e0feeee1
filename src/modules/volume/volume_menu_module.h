// The Volume status item: its picture in the bar, and its menu with the combined graph, a block
// per volume and the open and eject items.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/storage_menu_module.h"
#include "modules/volume/image_volume_bar.h"
#include "modules/volume/volume_ejector.h"
#include "modules/volume/volume_menu_controller.h"

#include <memory>

using VolumeMenuModuleBase = StorageMenuModuleOf<VolumePictureSettings, volumePictureSettings, ImageVolumeBar,
                                                 VolumeSample, Volume_MenuController>;

class Volume_MenuModule final : public VolumeMenuModuleBase {
    Q_OBJECT
public:
    explicit Volume_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    // The volumes to show; the menu's blocks and items follow at its next opening.
    void setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict);
    const VolumeBaseDict& volumeBaseDict() const { return *volumeBaseDict_; }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(disks)
        setVolumeBaseDict(std::move(volumes));
    }
    void refreshBar() override;

    VolumeEjector& ejector() { return *ejector_; }

protected:
    void drawBaseStatusBar() override;

private:
    void addVolumeItems();
    void ejectFinished(const QString& path, bool ejected, const QString& message);

    VolumeEjector* ejector_; // a child of this module
    std::shared_ptr<const VolumeBaseDict> volumeBaseDict_;
};
