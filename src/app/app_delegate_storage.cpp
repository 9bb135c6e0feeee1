// Handing the volume and disk descriptions to the Disk and Volume modules and their previews.
#include "app/app_delegate.h"

#include "app/volume_tracker.h"
#include "modules/disk/disk_menu_module.h"
#include "modules/disk/disk_tab_view_controller.h"
#include "modules/volume/volume_menu_module.h"
#include "modules/volume/volume_tab_view_controller.h"
#include "prefs/pref_keys.h"

void AppDelegate::moduleDskRefresh(bool reset)
{
    auto* disk = dynamic_cast<Disk_MenuModule*>(menuModule(ModuleId::Disk));
    if (!chkGeneBool(PrefKey::LaunchDisk) || disk == nullptr)
        return;
    disk->setDiskBaseDict(volumeTracker_->diskBaseDict());
    if (disk->checkcMenuOpened())
        disk->menuAutoClose();
    if (reset)
        disk->resetAndRefreshBar();
}

void AppDelegate::moduleVolRefresh(bool reset)
{
    auto* volume = dynamic_cast<Volume_MenuModule*>(menuModule(ModuleId::Volume));
    if (!chkGeneBool(PrefKey::LaunchVolume) || volume == nullptr)
        return;
    volume->setVolumeBaseDict(volumeTracker_->sharedVolumeBaseDict());
    if (volume->checkcMenuOpened())
        volume->menuAutoClose();
    if (reset)
        volume->resetAndRefreshBar();
}

void AppDelegate::moduleDskVolRefresh()
{
    // The tracker announces a rebuild, which storageDescriptionsChanged hands on.
    volumeTracker_->moduleDskVolRefresh();
}

void AppDelegate::storageDescriptionsChanged()
{
    moduleDskRefresh(true);
    moduleVolRefresh(true);
    // A volume just mounted is measured at the next cycle rather than at the end of the Volume
    // interval, so it shows its fill at once. (A cycle running now keeps its own counters.)
    if (chkGeneBool(PrefKey::LaunchVolume))
        mutableDefaults(ModuleId::General).set(moduleKeys(ModuleId::Volume).counterKey, qint64{0});
    handOutStorageDescriptions();
}

void AppDelegate::handOutStorageDescriptions()
{
    // The modules hold copies; a rebuild from the settings must reach them without closing
    // their menus, as the mount reaction does.
    if (auto* disk = dynamic_cast<Disk_MenuModule*>(menuModule(ModuleId::Disk)))
        disk->setDiskBaseDict(volumeTracker_->diskBaseDict());
    if (auto* volume = dynamic_cast<Volume_MenuModule*>(menuModule(ModuleId::Volume)))
        volume->setVolumeBaseDict(volumeTracker_->sharedVolumeBaseDict());
    if (preferencePanel_ == nullptr)
        return;
    for (int i = 0; i < preferencePanel_->tabCount(); ++i) {
        if (auto* disk = qobject_cast<DiskTabViewController*>(preferencePanel_->tab(i)))
            disk->setDiskBaseDict(volumeTracker_->diskBaseDict());
        else if (auto* volume = qobject_cast<VolumeTabViewController*>(preferencePanel_->tab(i)))
            volume->setVolumeBaseDict(volumeTracker_->sharedVolumeBaseDict());
    }
}
