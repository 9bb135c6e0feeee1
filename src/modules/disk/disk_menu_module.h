// The Disk status item: its picture in the bar, and its menu with the combined graph and a block
// per disk.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/disk/disk_menu_controller.h"
#include "modules/disk/image_disk_bar.h"
#include "modules/module_settings.h"
#include "modules/storage_menu_module.h"

class Disk_MenuModule final : public StorageMenuModule {
    Q_OBJECT
public:
    explicit Disk_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<DiskSample>& history) { resumeArray = history; }
    // The disks to show; the menu's blocks follow at its next opening.
    void setDiskBaseDict(const DiskBaseDict& diskBaseDict);
    const DiskBaseDict& diskBaseDict() const { return diskBaseDict_; }
    void refreshBar() override;

    // The panel of disk blocks; none before the menu is built.
    Disk_MenuController* controller() const { return diskMenuController; }

protected:
    void drawBaseStatusBar() override;
    void settingsChanged() override { settings_.read(diskPictureSettings, myDefaults, withMenuLayout()); }
    void prepareMenuOpening() override { settings_.keepForOpenMenu(); }
    QImage drawMenuGraph() override { return drawStorageMenuGraph(imageDiskMenu, settings_.menu, resumeArray); }
    QImage openMenuGraph() override { return drawStorageMenuGraph(imageDiskMenu, settings_.openMenu, resumeArray); }
    void replacePanelData() override;

private:
    ImageDiskBar imageDiskBar;
    ImageDiskBar imageDiskMenu;
    Disk_MenuController* diskMenuController = nullptr; // owned by the menu through its widget action
    ModuleSettings<DiskPictureSettings> settings_;
    History<DiskSample> resumeArray;
    DiskBaseDict diskBaseDict_;
};
