// The Fan status item over the shared sensor item.
#include "modules/fan/fan_menu_module.h"

#include "modules/fan/fan_menu_controller.h"
#include "modules/fan/fan_module_picture.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

using namespace PrefKey;

Fan_MenuModule::Fan_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : SensorMenuModule(delegate, std::make_unique<FanModulePicture>(delegate),
                       {Fan_EnaMenu_Amon, Fan_EnaMenu_Cnsl, Fan_EnaMenu_Tmnl}, parent)
{}

SensorPanel* Fan_MenuModule::createPanel()
{
    return new Fan_MenuController(sensorTable());
}

void Fan_MenuModule::refreshPanel(SensorPanel& panel)
{
    static_cast<Fan_MenuController&>(panel).replaceData(newestSample());
}
