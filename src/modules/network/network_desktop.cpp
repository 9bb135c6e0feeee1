// The Network module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/module_desktop.h"
#include "modules/network/network_menu_module.h"
#include "modules/network/network_tab_view_controller.h"

const ModuleDesktop& networkModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<Network_MenuModule>,
                                       &makePreferenceTab<NetworkTabViewController>};
    return desktop;
}
