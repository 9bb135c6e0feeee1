// The CPU module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/cpu/cpu_menu_module.h"
#include "modules/cpu/cpu_tab_view_controller.h"
#include "modules/module_desktop.h"

const ModuleDesktop& cpuModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<CPU_MenuModule>, &makePreferenceTab<CpuTabViewController>};
    return desktop;
}
