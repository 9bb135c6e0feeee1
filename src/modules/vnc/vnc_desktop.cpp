// The VNC module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/module_desktop.h"
#include "modules/vnc/vnc_menu_module.h"
#include "modules/vnc/vnc_tab_view_controller.h"

const ModuleDesktop& vncModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<VNC_MenuModule>, &makePreferenceTab<VNCTabViewController>};
    return desktop;
}
