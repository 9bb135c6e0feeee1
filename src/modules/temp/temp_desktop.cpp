// The Temp module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/module_desktop.h"
#include "modules/temp/temp_menu_module.h"
#include "modules/temp/temp_tab_view_controller.h"

const ModuleDesktop& tempModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<Temp_MenuModule>, &makePreferenceTab<TempTabViewController>};
    return desktop;
}
