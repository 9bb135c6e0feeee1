// Source of memory facts: the kernel's memory and paging counters, swap areas, page size.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

// Counter name to value; the transparent comparator lets callers look up by string_view.
using NamedCounters = std::map<std::string, std::uint64_t, std::less<>>;

struct SwapArea {
    std::string filename;
    std::string type; // "partition" or "file"
    std::uint64_t sizeKiB = 0;
    std::uint64_t usedKiB = 0;
};

// The figures the memory sample is made of, in bytes, except the page-in and page-out counts;
// each is empty when the kernel does not print it.
struct MemoryCounters {
    std::optional<std::uint64_t> memTotal, memFree, memAvailable, buffers, cached, shmem;
    std::optional<std::uint64_t> active, inactive, activeAnon, activeFile, inactiveAnon, inactiveFile;
    std::optional<std::uint64_t> unevictable, sUnreclaim, sReclaimable, kernelStack, pageTables, anonPages;
    std::optional<std::uint64_t> zswap; // the compressed pool's size
    std::optional<std::uint64_t> pswpin, pswpout;
};

class MemorySource {
public:
    virtual ~MemorySource() = default;
    // Memory figures by name, in bytes where the kernel gives a size, as plain counts otherwise.
    virtual std::optional<NamedCounters> memoryInfo() = 0;
    // Paging and page-state counters by name, as counts.
    virtual std::optional<NamedCounters> vmStatistics() = 0;
    // The sample's figures from one read of each counter file, without building the tables
    // above; empty when the memory figures cannot be read (the paging counts may still be
    // missing). The paging counts are read only withPaging: their file is long to generate.
    virtual std::optional<MemoryCounters> memoryCounters(bool withPaging = true) = 0;
    virtual std::optional<std::vector<SwapArea>> swapAreas() = 0;
    virtual std::size_t pageSize() = 0;
    // Whether the compressed swap cache is switched on; empty when the system has none.
    virtual std::optional<bool> zswapEnabled() = 0;
    // The size in bytes the system aims at for a hibernation image; empty where it cannot
    // hibernate.
    virtual std::optional<std::uint64_t> hibernationImageSize() = 0;
};
