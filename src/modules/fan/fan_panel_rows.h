// What the Fan menu lists: every fan with its speed and limits, and their average.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/sensor_panel_row.h"

#include <QList>

// A fan missing from the sample shows the placeholder; no fans gives a note that none were found.
QList<SensorPanelRow> fanPanelRows(const QList<FanEntry>& fans, const SensorSample& sample);
