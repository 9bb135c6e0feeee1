// Block device facts and change events from the device manager (udev).
#pragma once

#include "collect/device_database_source.h"

#include <string_view>

struct udev;
struct udev_device;
struct udev_monitor;

class UdevDeviceDatabase final : public DeviceDatabaseSource {
public:
    UdevDeviceDatabase();
    ~UdevDeviceDatabase() override;
    UdevDeviceDatabase(const UdevDeviceDatabase&) = delete;
    UdevDeviceDatabase& operator=(const UdevDeviceDatabase&) = delete;

    std::optional<DeviceProperties> blockDevice(const std::string& name) override;
    std::optional<DeviceProperties> blockDevice(std::uint32_t major, std::uint32_t minor) override;
    int eventDescriptor() override;
    DeviceEvents takeDeviceEvents() override;

private:
    static std::optional<DeviceProperties> properties(udev_device* device);

    udev* udev_ = nullptr;
    udev_monitor* monitor_ = nullptr;
};

// Decodes the "\x20"-style escapes of udev's *_ENC properties, which keep a label's or a
// model's blanks and non-ASCII bytes that the plain properties replace by "_".
std::string decodeUdevEscapes(std::string_view text);
