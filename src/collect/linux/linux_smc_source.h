// SMC values served from the hwmon chips, so that the SMC's collectors run unchanged on Linux.
#pragma once

#include "collect/sensor_source.h"
#include "collect/smc_source.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Temperatures are served as "sp78": the SMC driver's (applesmc) under the SMC keys its labels
// name, every other chip's under the input's lasting name (see temperatureKey). Fans are those of
// every chip, in a fixed order (device, then fan number), under the SMC's fan keys: "FNum",
// "F<i>ID" (the label), "F<i>Ac" (speed), "F<i>Mn" and "F<i>Mx" (limits).
// One connection at a time: the collector holds its lock from open() to close().
class LinuxSmcSource final : public SmcSource {
public:
    explicit LinuxSmcSource(std::shared_ptr<SensorSource> sensors);

    // False when the machine has no sensor chip at all.
    bool open() override;
    int readValue(std::string_view key, SMCValue& value) override;
    void close() override;
    // Only where the SMC's driver is loaded.
    bool servesSmcKeys() override;
    QList<TempSensorEntry> namedTemperatures() override;

private:
    // A fan of the list, which is drawn up once, the first time fans are asked for, and then kept
    // for good: a fan's index must keep meaning the same fan.
    struct FanSlot {
        std::string device;
        std::string key; // "fan2"
        std::optional<std::string> label;
        std::optional<std::int64_t> minimum;
        std::optional<std::int64_t> maximum;
    };

    // The chips' temperatures and fan speeds, read at most once per connection, when first asked.
    const std::vector<SensorChip>& temperatureChips();
    const std::vector<SensorChip>& fanChips();
    int readTemperature(std::string_view key, SMCValue& value);
    int readFan(std::string_view key, SMCValue& value);
    std::optional<std::int64_t> fanSpeed(const FanSlot& slot);

    std::shared_ptr<SensorSource> sensors_;
    std::vector<SensorChip> chips_; // as listed at open(), without readings
    std::optional<std::vector<SensorChip>> temperatureChips_;
    std::optional<std::map<std::string, std::int64_t, std::less<>>> temperatures_; // key → millidegrees
    std::optional<std::vector<SensorChip>> fanChips_;
    std::optional<std::vector<FanSlot>> fans_;
};
