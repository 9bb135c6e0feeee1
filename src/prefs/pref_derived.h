// Derived layout values of the working dictionaries: text widths, label pairs, launch flags.
#pragma once

#include "prefs/module_defaults.h"
#include "prefs/module_table.h"
#include "prefs/settings_store.h"

#include <QVariantMap>

void addDerivedKeys(ModuleId id, ModuleDefaults& dict, SettingsStore& store, const QVariantMap& theme);
