// Registers each module's status-item class.
#include "modules/module_registry.h"

#include "modules/cpu/cpu_menu_module.h"
#include "modules/general/general_menu_module.h"

std::unique_ptr<MenuModule> createMenuModule(ModuleId id, MenuModuleDelegate* delegate)
{
    switch (id) {
    case ModuleId::General:
        return std::make_unique<General_MenuModule>(delegate);
    case ModuleId::Cpu:
        return std::make_unique<CPU_MenuModule>(delegate);
    case ModuleId::Memory:
    case ModuleId::Network:
    case ModuleId::Disk:
    case ModuleId::Volume:
    case ModuleId::Temp:
    case ModuleId::Fan:
    case ModuleId::Vnc:
        return nullptr;
    }
    return nullptr;
}
