// The General item's words: the name with the running version and where the settings are kept.
#pragma once

#include "prefs/module_defaults.h"

#include <QString>

class SettingsStore;

QString generalItemText(const ModuleDefaults& general, const SettingsStore& store);
