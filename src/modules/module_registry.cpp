// Registers each module's status-item class.
#include "modules/module_registry.h"

#include "modules/cpu/cpu_menu_module.h"
#include "modules/cpu/cpu_tab_view_controller.h"
#include "modules/disk/disk_menu_module.h"
#include "modules/disk/disk_tab_view_controller.h"
#include "modules/general/general_menu_module.h"
#include "modules/general/top_tab_view_controller.h"
#include "modules/memory/memory_menu_module.h"
#include "modules/memory/memory_tab_view_controller.h"
#include "modules/network/network_menu_module.h"
#include "modules/network/network_tab_view_controller.h"
#include "modules/volume/volume_menu_module.h"
#include "modules/volume/volume_tab_view_controller.h"
#include "preferences/unbuilt_module_tab.h"

std::unique_ptr<MenuModule> createMenuModule(ModuleId id, MenuModuleDelegate* delegate)
{
    switch (id) {
    case ModuleId::General:
        return std::make_unique<General_MenuModule>(delegate);
    case ModuleId::Cpu:
        return std::make_unique<CPU_MenuModule>(delegate);
    case ModuleId::Memory:
        return std::make_unique<Memory_MenuModule>(delegate);
    case ModuleId::Network:
        return std::make_unique<Network_MenuModule>(delegate);
    case ModuleId::Disk:
        return std::make_unique<Disk_MenuModule>(delegate);
    case ModuleId::Volume:
        return std::make_unique<Volume_MenuModule>(delegate);
    case ModuleId::Temp:
    case ModuleId::Fan:
    case ModuleId::Vnc:
        return nullptr;
    }
    return nullptr;
}

bool moduleHasStatusItem(ModuleId id)
{
    return createMenuModule(id, nullptr) != nullptr;
}

PreferenceTab* createPreferenceTab(ModuleId id, MenuModuleDelegate* delegate, SettingsStore& store,
                                   PrefNotificationCenter& center)
{
    switch (id) {
    case ModuleId::General:
        return new TopTabViewController(delegate, store, center);
    case ModuleId::Cpu:
        return new CpuTabViewController(store, center);
    case ModuleId::Memory:
        return new MemoryTabViewController(delegate, store, center);
    case ModuleId::Network:
        return new NetworkTabViewController(store, center);
    case ModuleId::Disk:
        return new DiskTabViewController(store, center);
    case ModuleId::Volume:
        return new VolumeTabViewController(store, center);
    case ModuleId::Temp:
    case ModuleId::Fan:
    case ModuleId::Vnc:
        break;
    }
    return new UnbuiltModuleTab(id, store, center);
}
