// The Memory module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/memory/memory_menu_module.h"
#include "modules/memory/memory_tab_view_controller.h"
#include "modules/module_desktop.h"

const ModuleDesktop& memoryModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<Memory_MenuModule>, &makePreferenceTab<MemoryTabViewController>};
    return desktop;
}
