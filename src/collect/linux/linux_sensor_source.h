// Temperatures and fan speeds from the hwmon chips of /sys/class/hwmon.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/sensor_source.h"

#include <mutex>

class LinuxSensorSource final : public SensorSource {
public:
    explicit LinuxSensorSource(const SysRoot& root);

    std::vector<SensorChip> readSensors() override;

private:
    struct Input {
        SensorReading fixed; // key, label and marks, read once
        ProcFile file;
    };
    struct Chip {
        std::string id;
        std::string device;
        std::string name;
        std::vector<Input> temperatures;
        std::vector<Input> fans;
    };

    void discover();
    void discoverHwmon();
    void discoverThermalZones();
    // Below sys, the device a node belongs to, following its device link.
    std::string devicePath(const std::filesystem::path& node) const;

    SysRoot root_;
    std::mutex lock_;
    // Chips and inputs are found once; after that only the kept-open input files are read.
    bool discovered_ = false;
    std::vector<Chip> chips_;
};
