// Source of hardware sensor readings: temperatures and fan speeds, grouped by chip.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct SensorReading {
    std::string key;                   // the chip's own name for the input, e.g. "temp1"
    std::optional<std::string> label;  // what the driver calls it, when it says
    std::int64_t value = 0;            // millidegrees Celsius, or revolutions per minute
};

struct SensorChip {
    std::string id;    // where the system lists it, e.g. "hwmon0"
    std::string name;  // the driver's chip name, e.g. "coretemp"
    std::vector<SensorReading> temperatures;
    std::vector<SensorReading> fans;
};

class SensorSource {
public:
    virtual ~SensorSource() = default;
    // Current readings; inputs that cannot be read this time are left out.
    virtual std::vector<SensorChip> readSensors() = 0;
};
