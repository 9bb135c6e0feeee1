// Source of block device facts: the devices with their partitions, and their I/O counters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct BlockPartition {
    std::string name;
    std::optional<std::uint64_t> sectors; // 512-byte sectors
};

struct BlockDevice {
    std::string name;
    std::optional<std::uint64_t> sectors; // 512-byte sectors, whatever the device's block size
    std::optional<bool> removable;
    std::optional<bool> rotational;
    std::optional<std::string> backingFile; // the file behind a loop device, while one is attached
    // No hardware of its own (loop, device-mapper, md, zram, ram): its transfers are those of the
    // devices beneath it, or of memory.
    bool isVirtual = false;
    std::vector<std::string> slaves; // the devices or partitions it is built on, in name order
    std::vector<BlockPartition> partitions;
};

// One row of the kernel's disk statistics. Older kernels give no discard or flush figures.
struct DiskStatistics {
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::string name;
    std::uint64_t readsCompleted = 0;
    std::uint64_t readsMerged = 0;
    std::uint64_t sectorsRead = 0;
    std::uint64_t readMilliseconds = 0;
    std::uint64_t writesCompleted = 0;
    std::uint64_t writesMerged = 0;
    std::uint64_t sectorsWritten = 0;
    std::uint64_t writeMilliseconds = 0;
    std::uint64_t ioInProgress = 0;
    std::uint64_t ioMilliseconds = 0;
    std::uint64_t weightedIoMilliseconds = 0;
    std::optional<std::uint64_t> discardsCompleted;
    std::optional<std::uint64_t> discardsMerged;
    std::optional<std::uint64_t> sectorsDiscarded;
    std::optional<std::uint64_t> discardMilliseconds;
    std::optional<std::uint64_t> flushesCompleted;
    std::optional<std::uint64_t> flushMilliseconds;
};

class BlockDeviceSource {
public:
    virtual ~BlockDeviceSource() = default;
    virtual std::optional<std::vector<BlockDevice>> devices() = 0;
    virtual std::optional<std::vector<DiskStatistics>> diskStatistics() = 0;
};
