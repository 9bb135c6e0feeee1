// First-run values of every module.
#include "prefs/pref_functions.h"

#include "prefs/pref_schema.h"

namespace PrefFunctions {

void initializeModulePreference(ModuleId id, SettingsStore& store)
{
    for (const PrefField& field : moduleSchema(id).fields) {
        if (field.factory.isValid())
            store.setObject(QString::fromLatin1(field.key), field.factory);
    }
    store.synchronize();
}

void initializeGeneralPreference(SettingsStore& store) { initializeModulePreference(ModuleId::General, store); }
void initializeCpuPreference(SettingsStore& store) { initializeModulePreference(ModuleId::Cpu, store); }
void initializeMemoryPreference(SettingsStore& store) { initializeModulePreference(ModuleId::Memory, store); }
void initializeNetworkPreference(SettingsStore& store) { initializeModulePreference(ModuleId::Network, store); }
void initializeDiskPreference(SettingsStore& store) { initializeModulePreference(ModuleId::Disk, store); }
void initializeVolumePreference(SettingsStore& store) { initializeModulePreference(ModuleId::Volume, store); }
void initializeTempPreference(SettingsStore& store) { initializeModulePreference(ModuleId::Temp, store); }
void initializeFanPreference(SettingsStore& store) { initializeModulePreference(ModuleId::Fan, store); }
void initializeVncPreference(SettingsStore& store) { initializeModulePreference(ModuleId::Vnc, store); }

QVariantList defaultModuleSortArray()
{
    return {1, 2, 3, 4, 7, 5, 6, 8};
}

} // namespace PrefFunctions
