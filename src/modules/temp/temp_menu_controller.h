// The panel under the Temp menu's items: every sensor by chip, the average and the drives.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/sensor_panel.h"
#include "modules/temp/temp_panel_rows.h"

#include <QThreadPool>

class LoadSystemInformation;

class Temp_MenuController final : public SensorPanel {
    Q_OBJECT
public:
    Temp_MenuController(LoadSystemInformation& loadInfo, const SensorDatDict& table, QWidget* parent = nullptr);
    ~Temp_MenuController() override;

    // Every tick while the menu is open: the sensors at once, the drives from the background a
    // moment later. smartAccess: the drives are asked for their temperature, not only listed.
    void replaceData(const SensorSample& newest, const TempUnit& unit, bool smartAccess);

Q_SIGNALS:
    // The drive rows have been read and shown.
    void drivesUpdated();

private:
    void showRows();

    LoadSystemInformation& loadInfo_;
    const SensorDatDict& table_;
    SensorSample newest_;
    TempUnit unit_;
    QList<SmartReading> drives_;
    bool drivesInFlight_ = false;
    // Last member: its destructor waits for the drive reads that use the members above.
    QThreadPool pool_;
};
