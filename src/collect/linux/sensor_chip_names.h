// Lasting keys and display names of the hwmon chips' temperature inputs.
#pragma once

#include "collect/sensor_dat.h"
#include "collect/sensor_source.h"

#include <QList>

#include <string>
#include <vector>

// The chip name that marks the SMC's own driver, whose inputs are labelled with SMC keys.
inline constexpr char kAppleSmcChip[] = "applesmc";
// The chip name the thermal zones stand in under.
inline constexpr char kThermalZoneChip[] = "thermal";

// What an input is read by: on the SMC's driver, the SMC key of its label ("TC0P"); anywhere
// else, the device below sys and the attribute ("devices/platform/coretemp.0/temp2",
// "devices/virtual/thermal/thermal_zone0/temp"), which stays when hwmonN numbers change.
std::string temperatureKey(const SensorChip& chip, const SensorReading& reading);

// Every temperature input of the chips, keyed as above, sorted by key. Named by chip and label
// ("coretemp Core 0"), by chip and input without a label ("nct6775 temp1"), and a thermal zone by
// its type. Inputs that would share a name are told apart by their device's own name in place of
// the chip's ("coretemp.0 Core 0", "coretemp.1 Core 0"); any still alike are numbered " #2",
// " #3" in key order. Group: the chip's name; marks in whole degrees.
QList<TempSensorEntry> namedChipTemperatures(const std::vector<SensorChip>& chips);
