// The Fan module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/fan/fan_menu_module.h"
#include "modules/fan/fan_tab_view_controller.h"
#include "modules/module_desktop.h"

const ModuleDesktop& fanModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<Fan_MenuModule>, &makePreferenceTab<FanTabViewController>};
    return desktop;
}
