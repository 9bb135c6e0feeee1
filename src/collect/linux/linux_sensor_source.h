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
        std::string key;
        std::optional<std::string> label;
        ProcFile file;
    };
    struct Chip {
        std::string id;
        std::string name;
        std::vector<Input> temperatures;
        std::vector<Input> fans;
    };

    void discover();

    SysRoot root_;
    std::mutex lock_;
    // Chips and inputs are found once; after that only the kept-open input files are read.
    bool discovered_ = false;
    std::vector<Chip> chips_;
};
