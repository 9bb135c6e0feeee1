// The settings schema operations: first-run values, working dictionaries, repairs.
#pragma once

#include "prefs/module_defaults.h"
#include "prefs/pref_schema.h"
#include "prefs/settings_store.h"

#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace PrefFunctions {

// First-run values of one module, written and synchronised.
void initializeModulePreference(const ModuleSchema& schema, SettingsStore& store);

// A module's working dictionary from the store and the current theme: its stored keys, theme
// colours, pictures and fonts, and its derived values. all: every module's schema (the General
// dictionary carries every module's switch). Some modules repair out-of-range stored values,
// hence the store is not const.
ModuleDefaults loadModuleDefaults(const ModuleSchema& schema, SettingsStore& store, const QVariantMap& theme,
                                  ModuleSchemaList all);

// Menu-bar order codes: CPU, Memory, Network, Disk, Volume, Temp, Fan, VNC.
QVariantList defaultModuleSortArray();

// The value when 60..100, else 100 is stored and returned.
qint64 checkMaxTemp(SettingsStore& store, qint64 tempTmp);
// The value when 2000..6000, else 6000 is stored and returned.
qint64 checkMaxRpm(SettingsStore& store, qint64 rpmTmp);

// The largest size from the base size down to 3 at which text fits within graphWidth; 3 at least.
double calcPiledFontSize(const QString& text, double baseFontSize, const QString& baseFontKind, double graphWidth);

// A copy with every "-" emptied; none for an empty list.
std::optional<QStringList> checkHyphenToNull(const QStringList& labels);

} // namespace PrefFunctions
