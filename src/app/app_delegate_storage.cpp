// Handing the volume and disk descriptions to the modules that draw from them, and their previews.
#include "app/app_delegate.h"

#include "app/volume_tracker.h"
#include "modules/module_registry.h"

void AppDelegate::moduleStorageRefresh(ModuleId id, bool reset)
{
    ModuleItem* module = moduleItem(id);
    if (moduleDescriptor(id).storage == StorageUse::None || module == nullptr || !switchedOn(id))
        return;
    module->setStorageDescriptions(volumeTracker_->diskBaseDict(), volumeTracker_->sharedVolumeBaseDict());
    if (module->menuOpened())
        module->menuAutoClose();
    if (reset)
        module->resetAndRefreshBar();
}

void AppDelegate::moduleDskVolRefresh()
{
    // The tracker announces a rebuild, which storageDescriptionsChanged hands on.
    volumeTracker_->moduleDskVolRefresh();
}

void AppDelegate::storageDescriptionsChanged()
{
    for (const ModuleDescriptor* module : moduleRegistry()) {
        const ModuleId id = module->schema.id;
        moduleStorageRefresh(id, true);
        // A volume just mounted is measured at the next cycle rather than at the end of the
        // interval, so it shows its fill at once, even when a cycle is running now.
        if (module->storage == StorageUse::Volumes && switchedOn(id))
            schedule_.reset(id);
    }
    handOutStorageDescriptions();
}

void AppDelegate::handOutStorageDescriptions()
{
    // The modules hold copies; a rebuild from the settings must reach them without closing
    // their menus, as the mount reaction does.
    for (const std::unique_ptr<ModuleItem>& module : modules_) {
        if (module)
            module->setStorageDescriptions(volumeTracker_->diskBaseDict(), volumeTracker_->sharedVolumeBaseDict());
    }
    if (preferencesHost_ != nullptr)
        preferencesHost_->setStorageDescriptions(volumeTracker_->diskBaseDict(),
                                                 volumeTracker_->sharedVolumeBaseDict());
}

void AppDelegate::applyVolumeRenames()
{
    for (const ModuleDescriptor* module : moduleRegistry()) {
        if (module->storage != StorageUse::Volumes)
            continue;
        const std::size_t slot = moduleIndex(module->schema.id);
        History<VolumeSample> volumes = infoDict_.history<VolumeSample>(slot);
        if (volumeTracker_->applyPendingRenames(volumes))
            infoDict_.setHistory(slot, volumes);
    }
}
