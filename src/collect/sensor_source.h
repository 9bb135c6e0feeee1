// Source of hardware sensor readings: temperatures and fan speeds, grouped by chip.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct SensorReading {
    std::string key;                  // the chip's own name for the input, e.g. "temp1"
    std::optional<std::string> label; // what the driver calls it, when it says
    std::int64_t value = 0;           // millidegrees Celsius, or revolutions per minute
    // The driver's marks, in the same unit, where it gives them: a fan's minimum and maximum,
    // a temperature's high and critical marks.
    std::optional<std::int64_t> low;
    std::optional<std::int64_t> high;
    std::optional<std::int64_t> critical;
};

struct SensorChip {
    std::string id;     // where the system lists it now, e.g. "hwmon0"; may change across boots
    std::string device; // the device it belongs to below sys, e.g. "devices/platform/coretemp.0";
                        // the same across boots, so choices are remembered by it
    std::string name;   // the driver's chip name, e.g. "coretemp"; without one, the device's own
                        // name ("it87.552"), which stays across boots where "hwmon5" does not
    std::vector<SensorReading> temperatures;
    std::vector<SensorReading> fans;
};

// The readings a caller wants: a temperature sample need not wake the fans' inputs, nor a fan
// sample the drives'. The chips themselves are listed whatever is asked.
enum class SensorKinds { None = 0, Temperatures = 1, Fans = 2, All = 3 };

constexpr bool includes(SensorKinds kinds, SensorKinds kind)
{
    return (static_cast<int>(kinds) & static_cast<int>(kind)) != 0;
}

class SensorSource {
public:
    virtual ~SensorSource() = default;
    // Current readings of the kinds asked for; inputs that cannot be read this time are left
    // out. Where no chip gives a temperature, the thermal zones stand in, one chip each.
    virtual std::vector<SensorChip> readSensors(SensorKinds kinds) = 0;
};
