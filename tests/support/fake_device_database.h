// A device database the test fills: devices by kernel name, and by number as "major:minor".
#pragma once

#include "collect/device_database_source.h"

#include <map>
#include <string>

class FakeDeviceDatabase final : public DeviceDatabaseSource {
public:
    std::optional<DeviceProperties> blockDevice(const std::string& name) override
    {
        const auto found = devices.find(name);
        return found != devices.end() ? std::optional(found->second) : std::nullopt;
    }
    std::optional<DeviceProperties> blockDevice(std::uint32_t major, std::uint32_t minor) override
    {
        return blockDevice(std::to_string(major) + ":" + std::to_string(minor));
    }
    int eventDescriptor() override { return -1; }
    std::vector<std::string> takeChangedDevices() override { return {}; }

    std::map<std::string, DeviceProperties> devices;
};
