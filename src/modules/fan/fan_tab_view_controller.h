// The Fan module's preferences tab: elements and their order, full scale, graph, interval,
// colours, menu items and a live preview of the picture.
#pragma once

#include "modules/sensor_picture_tab.h"

class FanTabViewController : public SensorPictureTab {
    Q_OBJECT
public:
    FanTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

private:
    QWidget* buildDisplay();
};
