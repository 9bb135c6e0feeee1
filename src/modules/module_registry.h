// The one list of modules: their descriptors, and what the application asks of the list.
#pragma once

#include "modules/module_descriptor.h"
#include "prefs/module_id.h"

#include <array>
#include <memory>
#include <optional>

using ModuleRegistry = std::array<const ModuleDescriptor*, kModuleCount>;

// Every module in table order: General, CPU, Memory, Network, Disk, Volume, Temp, Fan, VNC.
const ModuleRegistry& moduleRegistry();
const ModuleDescriptor& moduleDescriptor(ModuleId id);
const ModuleSchema& moduleSchema(ModuleId id);
// Every module's schema, in table order.
ModuleSchemaList allModuleSchemas();

// The module that a menu-bar order code stands for; none for codes outside 1 to 8.
std::optional<ModuleId> moduleForSortCode(long long code);
// The module whose preference notification has that name.
std::optional<ModuleId> moduleForNotification(const QString& name);
// The module of that key ("CPU"), compared without case.
std::optional<ModuleId> moduleForKey(const QString& key);

// The 0-based index of the module's preferences tab.
int modulePreferenceTab(ModuleId id);
