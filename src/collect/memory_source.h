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
    std::string type;  // "partition" or "file"
    std::uint64_t sizeKiB = 0;
    std::uint64_t usedKiB = 0;
};

class MemorySource {
public:
    virtual ~MemorySource() = default;
    // Memory figures by name, in bytes where the kernel gives a size, as plain counts otherwise.
    virtual std::optional<NamedCounters> memoryInfo() = 0;
    // Paging and page-state counters by name, as counts.
    virtual std::optional<NamedCounters> vmStatistics() = 0;
    virtual std::optional<std::vector<SwapArea>> swapAreas() = 0;
    virtual std::size_t pageSize() = 0;
};
