// Temperatures and fan speeds from the hwmon chips of /sys/class/hwmon.
#pragma once

#include "collect/linux/proc_file.h"
#include "collect/linux/sys_root.h"
#include "collect/sensor_source.h"

#include <functional>
#include <mutex>

class LinuxSensorSource final : public SensorSource {
public:
    // devicesChanged is asked before every read (it must not block): true when hwmon devices
    // came or went, so that the chips are found anew, under their new hwmonN entries.
    explicit LinuxSensorSource(const SysRoot& root, std::function<bool()> devicesChanged = {});

    std::vector<SensorChip> readSensors(SensorKinds kinds) override;

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
    std::function<bool()> devicesChanged_;
    std::mutex lock_;
    // Chips and inputs are found once, and again only when devices come or go; in between only
    // the kept-open input files are read.
    bool discovered_ = false;
    std::vector<Chip> chips_;
};
