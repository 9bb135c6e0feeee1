// What a desktop adds to a module: its status item with its drop-down, and its preferences tab.
#pragma once

#include "modules/menu_module.h"

#include <memory>
#include <type_traits>

class PreferenceTab;
class PrefNotificationCenter;
class SettingsStore;

// Kept apart from the module's descriptor so that a program without a display (the text view,
// the snapshot) links none of the widgets these build.
struct ModuleDesktop {
    // Its status item; null while the module has none on this system.
    std::unique_ptr<MenuModule> (*createMenuModule)(MenuModuleDelegate* delegate) = nullptr;
    // Its preferences tab; null for a short notice in its place.
    PreferenceTab* (*createPreferenceTab)(MenuModuleDelegate* delegate, SettingsStore& store,
                                          PrefNotificationCenter& center) = nullptr;
};

template <class Item> std::unique_ptr<MenuModule> makeMenuModule(MenuModuleDelegate* delegate)
{
    return std::make_unique<Item>(delegate);
}

template <class Tab>
PreferenceTab* makePreferenceTab(MenuModuleDelegate* delegate, SettingsStore& store, PrefNotificationCenter& center)
{
    if constexpr (std::is_constructible_v<Tab, MenuModuleDelegate*, SettingsStore&, PrefNotificationCenter&>)
        return new Tab(delegate, store, center);
    else
        return new Tab(store, center);
}
