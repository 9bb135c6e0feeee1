// A module's switch: it is on while any of its display elements is on.
#pragma once

#include "prefs/module_table.h"

#include <vector>

class SettingsStore;

namespace PrefFunctions {

// The stored keys whose any being on switches the module on (the General module: its own switch).
const std::vector<const char*>& moduleDisplayKeys(ModuleId id);

// Whether the stored settings switch the module on.
bool isModuleSwitchedOn(const SettingsStore& store, ModuleId id);

// Switches the module off by clearing its display elements, remembering which were on; switching
// it on brings those back, or the first-run elements when none are remembered. Not synchronised.
void setModuleSwitch(SettingsStore& store, ModuleId id, bool on);

} // namespace PrefFunctions
