// Follows partitions and the devices stacked on them down to a disk.
#include "collect/block_device_tree.h"

#include <algorithm>

namespace {
// Deeper than any real stack (partition, crypt, LVM, md, ...); stops a tree whose links loop.
constexpr int kMaxDepth = 16;

// The whole device listed under name, or the device holding the partition of that name.
const BlockDevice* deviceHolding(const std::vector<BlockDevice>& devices, std::string_view name)
{
    for (const BlockDevice& device : devices) {
        if (device.name == name)
            return &device;
        if (std::any_of(device.partitions.begin(), device.partitions.end(),
                        [name](const BlockPartition& partition) { return partition.name == name; }))
            return &device;
    }
    return nullptr;
}

std::optional<std::string> disk(const std::vector<BlockDevice>& devices, std::string_view name, int depth)
{
    const BlockDevice* device = depth < kMaxDepth ? deviceHolding(devices, name) : nullptr;
    if (device == nullptr)
        return std::nullopt;
    if (!device->isVirtual)
        return device->name;
    // What a partition of a virtual device rests on is what the device rests on.
    for (const std::string& slave : device->slaves)
        if (auto found = disk(devices, slave, depth + 1))
            return found;
    return std::nullopt;
}
} // namespace

std::optional<std::string> underlyingDisk(const std::vector<BlockDevice>& devices, std::string_view name)
{
    return disk(devices, name, 0);
}
