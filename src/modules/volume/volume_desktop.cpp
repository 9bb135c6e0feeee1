// The Volume module's desktop parts: its status item with its drop-down, and its preferences tab.
#include "modules/module_desktop.h"
#include "modules/volume/volume_menu_module.h"
#include "modules/volume/volume_tab_view_controller.h"

const ModuleDesktop& volumeModuleDesktop()
{
    static const ModuleDesktop desktop{&makeMenuModule<Volume_MenuModule>, &makePreferenceTab<VolumeTabViewController>};
    return desktop;
}
