// The panel under the Fan menu's items: every fan with its speed and limits, and their average.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/sensor_panel.h"

class Fan_MenuController final : public SensorPanel {
    Q_OBJECT
public:
    explicit Fan_MenuController(const SensorDatDict& table, QWidget* parent = nullptr);

    // Every tick while the menu is open.
    void replaceData(const SensorSample& newest);

private:
    const SensorDatDict& table_;
};
