// The General module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/general/general_menu_module.h"
#include "modules/general/top_tab_view_controller.h"
#include "modules/module_desktop.h"

const ModuleDesktop& generalModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<General_MenuModule>, &makePreferenceTab<TopTabViewController>};
    return desktop;
}
