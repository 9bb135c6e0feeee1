// The Disk module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/disk/disk_menu_module.h"
#include "modules/disk/disk_tab_view_controller.h"
#include "modules/module_desktop.h"

const ModuleDesktop& diskModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<Disk_MenuModule>, &makePreferenceTab<DiskTabViewController>};
    return desktop;
}
