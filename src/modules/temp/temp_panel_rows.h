// What the Temp menu lists: every sensor by chip with its marks, the average, the drives.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/sensor_panel_row.h"

#include <QList>
#include <QString>

struct TempUnit {
    int mode = 1; // Temp_Unit_Mode
    QString text; // "°C"
};

// Whole degrees in the unit, "---" (its placeholder) without a reading.
QString tempDegreesText(std::optional<qint64> celsius, const TempUnit& unit);

// table: the sensor table's temperatures (none: the machine names no sensor). drives: the drive
// list with its "---" row in front, or empty. A sensor missing from the sample shows the
// placeholder; a table without sensors gives a note that none were found.
QList<SensorPanelRow> tempPanelRows(const std::optional<QList<TempSensorEntry>>& table, const SensorSample& sample,
                                    const TempUnit& unit, const QList<SmartReading>& drives);
