// Registers each module's status-item class.
#include "modules/module_registry.h"

#include "modules/general/general_menu_module.h"

std::unique_ptr<MenuModule> createMenuModule(ModuleId id, MenuModuleDelegate* delegate)
{
    switch (id) {
    case ModuleId::General:
        return std::make_unique<General_MenuModule>(delegate);
    case ModuleId::Cpu:
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
