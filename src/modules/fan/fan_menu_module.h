// The Fan status item: the fans' average speed in the bar, every fan in the menu.
#pragma once

#include "modules/sensor_menu_module.h"

// Settings whose values the picture gives a meaning to:
//   Fax_MaxRpm: the graph's full scale, 2000 to 6000 revolutions per minute.
//   FanInnerTextFormat: the speed's format, derived from whether the text is piled.
class Fan_MenuModule final : public SensorMenuModule {
    Q_OBJECT
public:
    explicit Fan_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

protected:
    SensorPanel* createPanel() override;
    void refreshPanel(SensorPanel& panel) override;
};
