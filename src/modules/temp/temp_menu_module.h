// The Temp status item: the chosen temperature in the bar, every sensor in the menu.
#pragma once

#include "modules/sensor_menu_module.h"

// Settings whose values the picture gives a meaning to:
//   Temp_Unit_Mode: 1 Celsius, 2 Fahrenheit, 3 Kelvin.
//   Temp_ShowTempOnMenu: the sensor the bar follows by its name, or "(Average)".
//   Temp_MaxTemp: the graph's full scale, 60 to 100 degrees Celsius.
//   Temp_AccessForSmartDisks: the menu asks the drives for their temperatures.
class Temp_MenuModule final : public SensorMenuModule {
    Q_OBJECT
public:
    explicit Temp_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

protected:
    QString shownSensor() const override;
    SensorPanel* createPanel() override;
    void refreshPanel(SensorPanel& panel) override;
};
