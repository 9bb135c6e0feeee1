// The memory records: the per-tick page counts, swap usage and the swap-file data.
#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>

// Ten page counts in this order; -1 marks a figure the system does not have. Pages are of the
// system's page size (LoadSystemInformation::memoryPageSize()); converting to bytes is left to
// the consumers. How each figure is taken from the Linux counters is told in memory_mapping.h.
using MemorySample = std::array<std::int64_t, 10>;

enum MemoryFigure : std::size_t {
    MemoryWired = 0,
    MemoryActive = 1,
    MemoryInactive = 2,
    MemoryFree = 3,
    MemoryPageIns = 4,  // cumulative since boot
    MemoryPageOuts = 5, // cumulative since boot
    MemorySpeculative = 6,
    MemoryCompressor = 7,
    MemoryApplication = 8,
    MemoryCached = 9,
};

// What the breakdown adds up to. Both in pages.
struct MemoryTotals {
    std::int64_t totalPages = 0;     // MemTotal: the memory the kernel manages
    std::int64_t availablePages = 0; // what can be had without swapping

    bool operator==(const MemoryTotals&) const = default;
};

// Swap space in bytes, over every swap area.
struct SwapUsage {
    std::int64_t total = 0;
    std::int64_t available = 0;
    std::int64_t used = 0;

    bool operator==(const SwapUsage&) const = default;
};

// Where swapping goes and how large a hibernation image would be.
struct MemoryOptionDelayData {
    QString vmPath;                  // folder of the first swap file, or the first swap partition
    std::int64_t swapFileCount = 0;  // swap files and partitions in use
    std::int64_t sleepImageSize = 0; // bytes; 0 where the system cannot hibernate

    bool operator==(const MemoryOptionDelayData&) const = default;
};
