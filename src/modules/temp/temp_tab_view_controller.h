// The Temp module's preferences tab: elements and their order, the sensor shown, unit, full
// scale, graph, interval, colours, drives, menu items and a live preview of the picture.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/sensor_picture_tab.h"

class MenuModuleDelegate;
class QComboBox;

class TempTabViewController : public SensorPictureTab {
    Q_OBJECT
public:
    // The delegate hands over the sensor table of start-up; without one only the average is offered.
    TempTabViewController(MenuModuleDelegate* delegate, SettingsStore& store, PrefNotificationCenter& center,
                          QWidget* parent = nullptr);

    // The sensors offered to follow in the bar.
    void setTempBaseDict(const SensorDatDict& table);

protected:
    void loadViews() override;
    QString shownSensor(const ModuleDefaults& defaults) const override;

private:
    QWidget* buildDisplay();
    void fillSensorPopup();
    void sensorChosen(int index);

    QStringList sensorNames_;
    QComboBox* sensorPopup_ = nullptr;
};
