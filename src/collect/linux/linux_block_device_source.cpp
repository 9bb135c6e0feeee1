// Describes the block devices from sysfs and reads their counters from /proc/diskstats.
#include "collect/linux/linux_block_device_source.h"

#include "collect/linux/directory_names.h"
#include "collect/linux/diskstats_parser.h"
#include "collect/linux/rejected_text.h"
#include "collect/linux/sysfs_attribute.h"

namespace {
std::optional<bool> readFlag(const std::filesystem::path& path)
{
    const auto value = readAttributeInteger(path);
    if (!value)
        return std::nullopt;
    return *value != 0;
}

// A partition is a subdirectory carrying a "partition" attribute (its number).
std::vector<BlockPartition> readPartitions(const std::filesystem::path& device)
{
    std::vector<BlockPartition> partitions;
    const auto names = directoryNames(device);
    if (!names)
        return partitions;
    std::error_code error;
    for (const std::string& name : *names)
        if (std::filesystem::exists(device / name / "partition", error))
            partitions.push_back({name, readAttributeUnsigned(device / name / "size")});
    return partitions;
}
} // namespace

LinuxBlockDeviceSource::LinuxBlockDeviceSource(const SysRoot& root)
    : root_(root)
    , diskstats_(root.join("proc/diskstats"))
{}

std::optional<std::vector<BlockDevice>> LinuxBlockDeviceSource::devices()
{
    const std::filesystem::path block = root_.join("sys/block");
    const auto names = directoryNames(block);
    if (!names)
        return std::nullopt;
    // The kernel files every device without hardware of its own here; sys/block only links to it.
    const std::filesystem::path virtualBlock = root_.join("sys/devices/virtual/block");
    std::vector<BlockDevice> devices;
    std::error_code error;
    for (const std::string& name : *names) {
        const std::filesystem::path dir = block / name;
        BlockDevice device;
        device.name = name;
        device.sectors = readAttributeUnsigned(dir / "size");
        device.removable = readFlag(dir / "removable");
        device.rotational = readFlag(dir / "queue/rotational");
        device.backingFile = readAttributeText(dir / "loop/backing_file");
        device.isVirtual = std::filesystem::exists(virtualBlock / name, error);
        device.slaves = directoryNames(dir / "slaves").value_or(std::vector<std::string>());
        device.partitions = readPartitions(dir);
        devices.push_back(std::move(device));
    }
    return devices;
}

std::optional<std::vector<DiskStatistics>> LinuxBlockDeviceSource::diskStatistics()
{
    const std::lock_guard guard(lock_);
    const auto text = diskstats_.read();
    return text ? acceptParsed(diskstats_.path(), parseDiskstats(*text)) : std::nullopt;
}
