// The Fan status item's drop-down: every fan's speed.
#pragma once

#include "modules/sensor_menu_module.h"

class Fan_MenuModule final : public SensorMenuModule {
    Q_OBJECT
public:
    explicit Fan_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

protected:
    SensorPanel* createPanel() override;
    void refreshPanel(SensorPanel& panel) override;
};
