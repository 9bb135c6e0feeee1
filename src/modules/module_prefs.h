// Loading and first-run values of a module's settings, by module, through the registry.
#pragma once

#include "prefs/module_defaults.h"
#include "prefs/module_id.h"

#include <QVariantMap>

class SettingsStore;

namespace PrefFunctions {

// The module's working dictionary from the store and the theme (see the schema overload).
ModuleDefaults loadModuleDefaults(ModuleId id, SettingsStore& store, const QVariantMap& theme);
// The module's first-run values, written and synchronised.
void initializeModulePreference(ModuleId id, SettingsStore& store);

void initializeGeneralPreference(SettingsStore& store);
void initializeCpuPreference(SettingsStore& store);
void initializeMemoryPreference(SettingsStore& store);
void initializeNetworkPreference(SettingsStore& store);
void initializeDiskPreference(SettingsStore& store);
void initializeVolumePreference(SettingsStore& store);
void initializeTempPreference(SettingsStore& store);
void initializeFanPreference(SettingsStore& store);
void initializeVncPreference(SettingsStore& store);

ModuleDefaults loadGeneralDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadCpuDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadMemoryDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadNetworkDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loaddiskDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadvolumeDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadTempDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadFanDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadVncDefaults(SettingsStore& store, const QVariantMap& theme);

} // namespace PrefFunctions
