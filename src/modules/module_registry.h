// The one list of status-item modules that exist, by module.
#pragma once

#include "modules/menu_module.h"
#include "prefs/module_table.h"

#include <memory>

class PreferenceTab;
class PrefNotificationCenter;
class SettingsStore;

// A new module of that kind; none for a module that has no status item on this system yet.
std::unique_ptr<MenuModule> createMenuModule(ModuleId id, MenuModuleDelegate* delegate);

// Whether the module has a status item on this system yet.
bool moduleHasStatusItem(ModuleId id);

// The module's preferences tab; modules without settings of their own yet get a short notice.
PreferenceTab* createPreferenceTab(ModuleId id, MenuModuleDelegate* delegate, SettingsStore& store,
                                   PrefNotificationCenter& center);
