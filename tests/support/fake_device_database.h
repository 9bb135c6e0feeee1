// A device database the test fills: devices by kernel name, and by number as "major:minor".
#pragma once

#include "collect/device_database_source.h"

#include <unistd.h>

#include <map>
#include <string>
#include <utility>

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
    // A pipe stands for the device manager's socket: a test queues events and writes a byte.
    int eventDescriptor() override { return eventReadEnd; }
    DeviceEvents takeDeviceEvents() override
    {
        char drained[64];
        while (eventReadEnd >= 0 && ::read(eventReadEnd, drained, sizeof drained) > 0) {
        }
        return std::exchange(queued, {});
    }

    int eventReadEnd = -1;
    DeviceEvents queued;

    std::map<std::string, DeviceProperties> devices;
};
