// The Volume status item: its picture in the bar, and its menu with the combined graph, a block
// per volume and the open and eject items.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/menu_module.h"
#include "modules/volume/image_volume_bar.h"
#include "modules/volume/volume_ejector.h"
#include "modules/volume/volume_menu_controller.h"

#include <memory>

class QLabel;

class Volume_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit Volume_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<VolumeSample>& history) { resumeArray = history; }
    // The volumes to show; the menu's blocks and items follow at its next opening.
    void setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict);
    const VolumeBaseDict& volumeBaseDict() const { return *volumeBaseDict_; }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(disks)
        setVolumeBaseDict(std::move(volumes));
    }
    void refreshBar() override;

    bool checkcMenuOpened() const { return menuOpened(); }
    // Draws again from the volumes now described (after a mount or an unmount).
    void resetAndRefreshBar() override;

    // The panel of volume blocks; none before the menu is built.
    Volume_MenuController* controller() const { return volumeMenuController; }
    VolumeEjector& ejector() { return *ejector_; }

protected:
    void drawBaseStatusBar() override;
    void redrawStatusItem() override;

private:
    static constexpr double kMenuGraphHeight = 20;

    void addVolumeItems();
    void ejectFinished(const QString& path, bool ejected, const QString& message);
    QImage drawMenuGraph(const ModuleDefaults& defaults) override;

    ImageVolumeBar imageVolumeBar;
    ImageVolumeBar imageVolumeMenu;
    QLabel* menuGraph_ = nullptr;                          // owned by the menu through its widget action
    Volume_MenuController* volumeMenuController = nullptr; // likewise
    VolumeEjector* ejector_;                               // a child of this module
    History<VolumeSample> resumeArray;
    std::shared_ptr<const VolumeBaseDict> volumeBaseDict_;
};
