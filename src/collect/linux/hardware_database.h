// The system's hardware database (udev's hwdb): vendor and model names of bus devices.
#pragma once

#include <optional>
#include <string>
#include <string_view>

struct udev;
struct udev_hwdb;

struct HardwareNames {
    std::optional<std::string> vendor;
    std::optional<std::string> model;
};

class HardwareDatabase {
public:
    HardwareDatabase();
    ~HardwareDatabase();
    HardwareDatabase(const HardwareDatabase&) = delete;
    HardwareDatabase& operator=(const HardwareDatabase&) = delete;

    // The names recorded for a device's modalias ("pci:v00008086d000015D7..."); both empty when
    // the database is not installed or does not know the device.
    HardwareNames lookup(std::string_view modalias) const;

private:
    udev* udev_ = nullptr;
    udev_hwdb* hwdb_ = nullptr;
};
