// A module's switch: it is on while any of its display elements is on.
#pragma once

#include "prefs/pref_schema.h"

class SettingsStore;

namespace PrefFunctions {

// Whether the stored settings switch the module on.
bool isModuleSwitchedOn(const SettingsStore& store, const ModuleSchema& schema);

// Switches the module off by clearing its display elements, remembering which were on; switching
// it on brings those back, or the first-run elements when none are remembered. Not synchronised.
void setModuleSwitch(SettingsStore& store, const ModuleSchema& schema, bool on);

} // namespace PrefFunctions
