// The Temp and Fan parts of the snapshot report: the figure of the bar, the menu's rows, the sample.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/module_descriptor.h"
#include "modules/sensor_panel_row.h"

#include <QJsonObject>
#include <QString>

// The module's newest sample; an empty one before the first.
SensorSample newestSensorSample(const SnapshotContext& context);

// The module's key, the bar's figure and the menu's rows, which say so when nothing was found.
QString sensorSnapshotText(const SnapshotContext& context, const QString& barText, const QList<SensorPanelRow>& rows);

// The newest sample under the module's key: each reading by its name, and the average under
// averageKey. Nothing before the first sample.
void addSensorSnapshotJson(const SnapshotContext& context, const char* averageKey, QJsonObject& root);
