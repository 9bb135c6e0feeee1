// The one list of modules: their descriptors, and what the application asks of the list.
#pragma once

#include "modules/menu_module.h"
#include "modules/module_descriptor.h"
#include "prefs/module_id.h"

#include <array>
#include <memory>
#include <optional>

class PreferenceTab;
class PrefNotificationCenter;
class SettingsStore;

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

// A new module of that kind; none for a module that has no status item on this system yet.
std::unique_ptr<MenuModule> createMenuModule(ModuleId id, MenuModuleDelegate* delegate);
// Whether the module has a status item on this system yet.
bool moduleHasStatusItem(ModuleId id);
// The module's preferences tab; modules without settings of their own yet get a short notice.
PreferenceTab* createPreferenceTab(ModuleId id, MenuModuleDelegate* delegate, SettingsStore& store,
                                   PrefNotificationCenter& center);
// The 0-based index of the module's preferences tab.
int modulePreferenceTab(ModuleId id);
