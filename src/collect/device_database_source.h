// Source of what the device manager has worked out about block devices: labels, hardware
// strings, and news of devices whose contents changed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct DeviceProperties {
    std::string name; // kernel name, such as sda1 or dm-0
    std::optional<std::string> fsLabel;
    std::optional<std::string> vendor;
    std::optional<std::string> model;
    std::optional<std::string> revision;
    std::optional<std::string> serial;
    std::optional<std::int64_t> rotationRate; // revolutions per minute
    std::optional<std::string> bus;           // "usb", "ata", "nvme", ...
};

struct DeviceEvents {
    // The kernel names of the devices whose contents changed (a new label, a new medium).
    std::vector<std::string> changed;
    // A device came or went, or changed at all: the list of disks may no longer hold (a loop
    // device detached after its unmount keeps its node, only its size falls to 0).
    bool any = false;
};

// Not thread-safe: used from the main thread only (rebuilds and event handling run there).
class DeviceDatabaseSource {
public:
    virtual ~DeviceDatabaseSource() = default;
    virtual std::optional<DeviceProperties> blockDevice(const std::string& name) = 0;
    virtual std::optional<DeviceProperties> blockDevice(std::uint32_t major, std::uint32_t minor) = 0;
    // A descriptor that turns readable when block devices change, for an event loop to wait
    // on; -1 when there is none.
    virtual int eventDescriptor() = 0;
    // What happened to block devices since the previous call. Never blocks.
    virtual DeviceEvents takeDeviceEvents() = 0;
};
