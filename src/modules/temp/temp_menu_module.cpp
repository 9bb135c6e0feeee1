// The Temp status item over the shared sensor item.
#include "modules/temp/temp_menu_module.h"

#include "modules/temp/temp_menu_controller.h"
#include "modules/temp/temp_module_picture.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

using namespace PrefKey;

Temp_MenuModule::Temp_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : SensorMenuModule(delegate, std::make_unique<TempModulePicture>(delegate),
                       {Temp_EnaMenu_Amon, Temp_EnaMenu_Cnsl, Temp_EnaMenu_Tmnl}, parent)
{}

SensorPanel* Temp_MenuModule::createPanel()
{
    if (myDelegate == nullptr)
        return new SensorPanel();
    return new Temp_MenuController(myDelegate->collector(), sensorTable());
}

void Temp_MenuModule::refreshPanel(SensorPanel& panel)
{
    const SensorSample newest = newestSample();
    const TempUnit unit{settings().unitMode, settings().unitText};
    if (auto* controller = qobject_cast<Temp_MenuController*>(&panel))
        controller->replaceData(newest, unit, defaults().boolValue(QLatin1String(Temp_AccessForSmartDisks)));
    else
        panel.setRows(tempPanelRows(sensorTable().tempData, newest, unit, {}));
}
