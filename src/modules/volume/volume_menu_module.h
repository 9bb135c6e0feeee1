// The Volume status item: its picture in the bar, and its menu with the combined graph, a block
// per volume and the open and eject items.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/module_settings.h"
#include "modules/storage_menu_module.h"
#include "modules/volume/image_volume_bar.h"
#include "modules/volume/volume_ejector.h"
#include "modules/volume/volume_menu_controller.h"

#include <memory>

class Volume_MenuModule final : public StorageMenuModule {
    Q_OBJECT
public:
    explicit Volume_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<VolumeSample>& history) { resumeArray = history; }
    // The volumes to show; the menu's blocks and items follow at its next opening.
    void setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict);
    const VolumeBaseDict& volumeBaseDict() const { return *volumeBaseDict_; }
    void refreshBar() override;

    // The panel of volume blocks; none before the menu is built.
    Volume_MenuController* controller() const { return volumeMenuController; }
    VolumeEjector& ejector() { return *ejector_; }

protected:
    void drawBaseStatusBar() override;
    void settingsChanged() override { settings_.read(volumePictureSettings, myDefaults, withMenuLayout()); }
    void prepareMenuOpening() override { settings_.keepForOpenMenu(); }
    QImage drawMenuGraph() override { return drawStorageMenuGraph(imageVolumeMenu, settings_.menu, resumeArray); }
    QImage openMenuGraph() override { return drawStorageMenuGraph(imageVolumeMenu, settings_.openMenu, resumeArray); }
    void replacePanelData() override;

private:
    void addVolumeItems();
    void ejectFinished(const QString& path, bool ejected, const QString& message);

    ImageVolumeBar imageVolumeBar;
    ImageVolumeBar imageVolumeMenu;
    Volume_MenuController* volumeMenuController = nullptr; // owned by the menu through its widget action
    VolumeEjector* ejector_;                               // a child of this module
    History<VolumeSample> resumeArray;
    std::shared_ptr<const VolumeBaseDict> volumeBaseDict_;
    ModuleSettings<VolumePictureSettings> settings_;
};
