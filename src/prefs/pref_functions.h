// The settings schema operations: first-run values, working dictionaries, repairs.
#pragma once

#include "prefs/module_defaults.h"
#include "prefs/module_table.h"
#include "prefs/settings_store.h"

#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace PrefFunctions {

// First-run values of one module, written and synchronised.
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

// A module's working dictionary from the store and the current theme. The Temp and Fan loaders
// repair an out-of-range maximum in the store, hence the store is not const.
ModuleDefaults loadModuleDefaults(ModuleId id, SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadGeneralDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadCpuDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadMemoryDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadNetworkDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loaddiskDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadvolumeDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadTempDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadFanDefaults(SettingsStore& store, const QVariantMap& theme);
ModuleDefaults loadVncDefaults(SettingsStore& store, const QVariantMap& theme);

// Menu-bar order codes: CPU, Memory, Network, Disk, Volume, Temp, Fan, VNC.
QVariantList defaultModuleSortArray();

// The value when 60..100, else 100 is stored and returned.
qint64 checkMaxTemp(SettingsStore& store, qint64 tempTmp);
// The value when 2000..6000, else 6000 is stored and returned.
qint64 checkMaxRpm(SettingsStore& store, qint64 rpmTmp);

// The largest size from the base size down to 3 at which text fits within graphWidth; 3 at least.
double calcPiledFontSize(const QString& text, double baseFontSize, const QString& baseFontKind,
                         double graphWidth);

// A copy with every "-" emptied; none for an empty list.
std::optional<QStringList> checkHyphenToNull(const QStringList& labels);

} // namespace PrefFunctions
