// Module settings by module: the registry's schema handed to the schema operations.
#include "modules/module_prefs.h"

#include "modules/module_registry.h"
#include "prefs/pref_functions.h"

namespace PrefFunctions {

ModuleDefaults loadModuleDefaults(ModuleId id, SettingsStore& store, const QVariantMap& theme)
{
    return loadModuleDefaults(moduleSchema(id), store, theme, allModuleSchemas());
}

void initializeModulePreference(ModuleId id, SettingsStore& store)
{
    initializeModulePreference(moduleSchema(id), store);
}

// clang-format off
void initializeGeneralPreference(SettingsStore& s) { initializeModulePreference(ModuleId::General, s); }
void initializeCpuPreference(SettingsStore& s) { initializeModulePreference(ModuleId::Cpu, s); }
void initializeMemoryPreference(SettingsStore& s) { initializeModulePreference(ModuleId::Memory, s); }
void initializeNetworkPreference(SettingsStore& s) { initializeModulePreference(ModuleId::Network, s); }
void initializeDiskPreference(SettingsStore& s) { initializeModulePreference(ModuleId::Disk, s); }
void initializeVolumePreference(SettingsStore& s) { initializeModulePreference(ModuleId::Volume, s); }
void initializeTempPreference(SettingsStore& s) { initializeModulePreference(ModuleId::Temp, s); }
void initializeFanPreference(SettingsStore& s) { initializeModulePreference(ModuleId::Fan, s); }
void initializeVncPreference(SettingsStore& s) { initializeModulePreference(ModuleId::Vnc, s); }

ModuleDefaults loadGeneralDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::General, s, t); }
ModuleDefaults loadCpuDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Cpu, s, t); }
ModuleDefaults loadMemoryDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Memory, s, t); }
ModuleDefaults loadNetworkDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Network, s, t); }
ModuleDefaults loaddiskDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Disk, s, t); }
ModuleDefaults loadvolumeDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Volume, s, t); }
ModuleDefaults loadTempDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Temp, s, t); }
ModuleDefaults loadFanDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Fan, s, t); }
ModuleDefaults loadVncDefaults(SettingsStore& s, const QVariantMap& t) { return loadModuleDefaults(ModuleId::Vnc, s, t); }
// clang-format on

} // namespace PrefFunctions
