// The Disk status item: its picture in the bar, and its menu with the combined graph and a block
// per disk.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/disk/disk_menu_controller.h"
#include "modules/disk/image_disk_bar.h"
#include "modules/menu_module.h"

class QLabel;

class Disk_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit Disk_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<DiskSample>& history) { resumeArray = history; }
    // The disks to show; the menu's blocks follow at its next opening.
    void setDiskBaseDict(const DiskBaseDict& diskBaseDict);
    const DiskBaseDict& diskBaseDict() const { return diskBaseDict_; }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(volumes)
        setDiskBaseDict(disks);
    }
    void refreshBar() override;

    bool checkcMenuOpened() const { return menuOpened(); }
    // Draws again from the disks now described (after a mount or an unmount).
    void resetAndRefreshBar() override;

    // The panel of disk blocks; none before the menu is built.
    Disk_MenuController* controller() const { return diskMenuController; }

protected:
    void drawBaseStatusBar() override;
    void redrawStatusItem() override;

private:
    static constexpr double kMenuGraphHeight = 20;

    QImage drawMenuGraph(const ModuleDefaults& defaults) override;

    ImageDiskBar imageDiskBar;
    ImageDiskBar imageDiskMenu;
    QLabel* menuGraph_ = nullptr;                      // owned by the menu through its widget action
    Disk_MenuController* diskMenuController = nullptr; // likewise
    History<DiskSample> resumeArray;
    DiskBaseDict diskBaseDict_;
};
