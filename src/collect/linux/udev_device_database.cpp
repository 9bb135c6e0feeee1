// Reads udev's properties of block devices and listens for their events.
#include "collect/linux/udev_device_database.h"

#include "collect/collect_log.h"
#include "collect/hex_escapes.h"
#include "collect/linux/text_fields.h"
#include "collect/linux/udev_monitor.h"

#include <libudev.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <memory>

namespace {
using DevicePtr = std::unique_ptr<udev_device, udev_device* (*)(udev_device*)>;

std::optional<std::string> property(udev_device* device, const char* key)
{
    const char* value = udev_device_get_property_value(device, key);
    if (value == nullptr)
        return std::nullopt;
    const std::string_view trimmed = trimSpace(value);
    if (trimmed.empty())
        return std::nullopt;
    return std::string(trimmed);
}

// The escaped form when it is there: it is the text as the device or file system holds it.
std::optional<std::string> text(udev_device* device, const char* encodedKey, const char* plainKey)
{
    if (const auto encoded = property(device, encodedKey)) {
        std::string decoded = decodeUdevEscapes(*encoded);
        const std::string_view trimmed = trimSpace(decoded);
        if (!trimmed.empty())
            return std::string(trimmed);
    }
    return property(device, plainKey);
}

} // namespace

std::string decodeUdevEscapes(std::string_view text)
{
    return decodeHexEscapes(text, "\\x");
}

UdevDeviceDatabase::UdevDeviceDatabase()
    : udev_(udev_new())
{
    if (udev_ == nullptr)
        qCDebug(lcCollect) << "no device manager context";
}

UdevDeviceDatabase::~UdevDeviceDatabase()
{
    if (monitor_ != nullptr)
        udev_monitor_unref(monitor_);
    if (udev_ != nullptr)
        udev_unref(udev_);
}

std::optional<DeviceProperties> UdevDeviceDatabase::blockDevice(const std::string& name)
{
    if (udev_ == nullptr || name.empty())
        return std::nullopt;
    const DevicePtr device(udev_device_new_from_subsystem_sysname(udev_, "block", name.c_str()), &udev_device_unref);
    return properties(device.get());
}

std::optional<DeviceProperties> UdevDeviceDatabase::blockDevice(std::uint32_t major, std::uint32_t minor)
{
    // Major 0 numbers the kernel's anonymous devices (network and pseudo file systems).
    if (udev_ == nullptr || major == 0)
        return std::nullopt;
    const DevicePtr device(udev_device_new_from_devnum(udev_, 'b', makedev(major, minor)), &udev_device_unref);
    return properties(device.get());
}

int UdevDeviceDatabase::eventDescriptor()
{
    if (udev_ == nullptr)
        return -1;
    if (monitor_ == nullptr)
        monitor_ = openUdevMonitor(udev_, "block");
    return monitor_ != nullptr ? udev_monitor_get_fd(monitor_) : -1;
}

DeviceEvents UdevDeviceDatabase::takeDeviceEvents()
{
    DeviceEvents events;
    if (monitor_ == nullptr)
        return events;
    // The monitor's socket does not block: an empty queue ends the loop.
    while (udev_device* raw = udev_monitor_receive_device(monitor_)) {
        const DevicePtr device(raw, &udev_device_unref);
        events.any = true;
        const char* action = udev_device_get_action(raw);
        const char* name = udev_device_get_sysname(raw);
        if (action != nullptr && name != nullptr && std::string_view(action) == "change" &&
            std::find(events.changed.begin(), events.changed.end(), name) == events.changed.end())
            events.changed.emplace_back(name);
    }
    return events;
}

std::optional<DeviceProperties> UdevDeviceDatabase::properties(udev_device* device)
{
    if (device == nullptr)
        return std::nullopt;
    DeviceProperties facts;
    if (const char* name = udev_device_get_sysname(device))
        facts.name = name;
    facts.fsLabel = text(device, "ID_FS_LABEL_ENC", "ID_FS_LABEL");
    facts.vendor = text(device, "ID_VENDOR_ENC", "ID_VENDOR");
    facts.model = text(device, "ID_MODEL_ENC", "ID_MODEL");
    facts.revision = property(device, "ID_REVISION");
    facts.serial = property(device, "ID_SERIAL_SHORT");
    if (!facts.serial)
        facts.serial = property(device, "ID_SERIAL");
    if (const auto rate = property(device, "ID_ATA_ROTATION_RATE_RPM"))
        facts.rotationRate = parseNumber<std::int64_t>(*rate);
    facts.bus = property(device, "ID_BUS");
    return facts;
}
