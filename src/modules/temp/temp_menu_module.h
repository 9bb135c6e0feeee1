// The Temp status item's drop-down: every sensor's temperature.
#pragma once

#include "modules/sensor_menu_module.h"

// Settings the menu reads besides the picture's:
//   Temp_AccessForSmartDisks: the menu asks the drives for their temperatures.
class Temp_MenuModule final : public SensorMenuModule {
    Q_OBJECT
public:
    explicit Temp_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

protected:
    SensorPanel* createPanel() override;
    void refreshPanel(SensorPanel& panel) override;
};
