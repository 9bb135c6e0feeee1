// Lists whole disks, matches the nvme and drivetemp chips to them, and reads ATA pages.
#include "collect/linux/linux_drive_source.h"

#include "collect/linux/directory_names.h"
#include "collect/linux/sysfs_attribute.h"

#include <atasmart.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>

namespace {
// Block devices that are no drive of their own: loops, RAM disks, mappings, arrays, optical.
bool isWholeDrive(const std::string& name)
{
    constexpr std::array<std::string_view, 6> others{"loop", "ram", "zram", "dm-", "md", "sr"};
    return std::none_of(others.begin(), others.end(), [&name](std::string_view p) { return name.starts_with(p); });
}

// The chips that report a drive's own temperature.
bool isDriveChip(const SensorChip& chip)
{
    return chip.name == "nvme" || chip.name == "drivetemp";
}

// "nvme0", not the namespace "nvme0n1" beside it.
bool isController(std::string_view entry)
{
    return entry.size() > 4 && entry.starts_with("nvme") &&
           std::all_of(entry.begin() + 4, entry.end(), [](char c) { return c >= '0' && c <= '9'; });
}

struct DiskFree {
    void operator()(SkDisk* disk) const { sk_disk_free(disk); }
};
} // namespace

LinuxDriveSource::LinuxDriveSource(const SysRoot& root, std::shared_ptr<SensorSource> sensors, bool askDrives)
    : root_(root), sensors_(std::move(sensors)), askDrives_(askDrives)
{}

std::string LinuxDriveSource::belowSys(const std::filesystem::path& path) const
{
    std::error_code error;
    const std::filesystem::path sys = std::filesystem::canonical(root_.join("sys"), error);
    const std::filesystem::path target = std::filesystem::canonical(path, error);
    if (error)
        return {};
    const std::filesystem::path relative = target.lexically_relative(sys);
    return relative.empty() || *relative.begin() == ".." ? std::string() : relative.generic_string();
}

std::set<std::string> LinuxDriveSource::chipDevices(const std::string& disk) const
{
    std::set<std::string> devices;
    const std::string own = belowSys(root_.join("sys/block/" + disk + "/device"));
    if (own.empty())
        return devices;
    devices.insert(own);
    const std::filesystem::path ownPath(own);
    if (ownPath.parent_path().filename() == "nvme-subsystem") {
        const std::filesystem::path subsystem = root_.join("sys/" + own);
        for (const std::string& entry : directoryNames(subsystem).value_or(std::vector<std::string>()))
            if (isController(entry))
                devices.insert(belowSys(subsystem / entry));
    }
    for (const std::string& device : std::set<std::string>(devices)) {
        const std::filesystem::path path(device);
        if (path.parent_path().filename() == "nvme")
            devices.insert(path.parent_path().parent_path().generic_string());
    }
    devices.erase(std::string());
    return devices;
}

std::vector<DriveListing> LinuxDriveSource::listDrives(bool readChips)
{
    std::vector<DriveListing> drives;
    const auto names = directoryNames(root_.join("sys/block"));
    if (!names)
        return drives;
    std::vector<SensorChip> chips;
    if (sensors_)
        chips = sensors_->readSensors(readChips ? SensorKinds::Temperatures : SensorKinds::None);
    for (const std::string& name : *names) {
        if (!isWholeDrive(name))
            continue;
        DriveListing drive{name, readAttributeText(root_.join("sys/block/" + name + "/device/model")).value_or(""), false, {}};
        const std::set<std::string> devices = chipDevices(name);
        for (const SensorChip& chip : chips) {
            if (!isDriveChip(chip) || !devices.contains(chip.device))
                continue;
            drive.hasSensorChip = true;
            // The drive's own sensor: temp1, "Composite" on NVMe.
            const auto first = std::find_if(chip.temperatures.begin(), chip.temperatures.end(),
                                            [](const SensorReading& r) { return r.key == "temp1"; });
            if (first != chip.temperatures.end())
                drive.chipMillidegrees = first->value;
            break;
        }
        drives.push_back(std::move(drive));
    }
    return drives;
}

std::optional<AtaPages> LinuxDriveSource::readAtaPages(const std::string& name)
{
    if (!askDrives_)
        return std::nullopt;
    const std::filesystem::path device = root_.join("dev/" + name);
    if (::access(device.c_str(), R_OK) != 0)
        return std::nullopt;
    SkDisk* raw = nullptr;
    if (sk_disk_open(device.c_str(), &raw) < 0 || raw == nullptr)
        return std::nullopt;
    const std::unique_ptr<SkDisk, DiskFree> disk(raw);
    // A sleeping drive is left asleep: asking for its SMART data would spin it up.
    SkBool awake = TRUE;
    if (sk_disk_check_sleep_mode(disk.get(), &awake) >= 0 && !awake)
        return std::nullopt;
    // Without SMART data the blob still carries the identify page, so a failed read is not the end.
    sk_disk_smart_read_data(disk.get());
    const void* blob = nullptr;
    std::size_t size = 0;
    if (sk_disk_get_blob(disk.get(), &blob, &size) < 0 || blob == nullptr)
        return std::nullopt;
    return ataPagesFromBlob(std::span(static_cast<const std::uint8_t*>(blob), size));
}
