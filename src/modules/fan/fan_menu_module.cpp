// The Fan status item over the shared sensor item.
#include "modules/fan/fan_menu_module.h"

#include "modules/fan/fan_menu_controller.h"
#include "modules/fan/fan_picture_settings.h"
#include "modules/fan/image_fan_bar.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

using namespace PrefKey;

Fan_MenuModule::Fan_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : SensorMenuModule(delegate, ModuleId::Fan, std::make_unique<ImageFanBar>(), &fanPictureSettings,
                       {Fan_EnaMenu_Amon, Fan_EnaMenu_Cnsl, Fan_EnaMenu_Tmnl}, parent)
{}

SensorPanel* Fan_MenuModule::createPanel()
{
    return new Fan_MenuController(sensorTable());
}

void Fan_MenuModule::refreshPanel(SensorPanel& panel)
{
    static_cast<Fan_MenuController&>(panel).replaceData(resumeArray.empty() ? SensorSample{} : resumeArray.back());
}
