// The Temp picture's settings, and which temperature it follows.
#pragma once

#include "modules/sensor_picture_settings.h"
#include "prefs/module_defaults.h"

#include <QString>

// What Temp_ShowTempOnMenu holds for the average of every sensor.
inline constexpr char kTempShowAverage[] = "(Average)";

SensorPictureSettings tempPictureSettings(const ModuleDefaults& defaults);

// The sensor the bar follows: its name, or empty for the average.
QString tempShownSensor(const ModuleDefaults& defaults);
