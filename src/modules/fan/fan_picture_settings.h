// The Fan picture's settings: the average speed of every fan, as a graph and as text.
#pragma once

#include "modules/sensor_picture_settings.h"
#include "prefs/module_defaults.h"

SensorPictureSettings fanPictureSettings(const ModuleDefaults& defaults);
