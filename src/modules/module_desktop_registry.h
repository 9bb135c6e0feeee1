// The modules' desktop parts, looked up by module: status items and preference tabs.
#pragma once

#include "modules/module_desktop.h"
#include "prefs/module_id.h"

// A new module of that kind; none for a module that has no status item on this system yet.
std::unique_ptr<MenuModule> createMenuModule(ModuleId id, MenuModuleDelegate* delegate);
// The same, as the application holds it.
std::unique_ptr<ModuleItem> createModuleItem(ModuleId id, MenuModuleDelegate* delegate);
// Whether the module has a status item on this system yet.
bool moduleHasStatusItem(ModuleId id);
// The module's preferences tab; modules without settings of their own yet get a short notice.
PreferenceTab* createPreferenceTab(ModuleId id, MenuModuleDelegate* delegate, SettingsStore& store,
                                   PrefNotificationCenter& center);
