// Reads the memory counters from kept-open files.
#include "collect/linux/linux_memory_source.h"

#include "collect/linux/memory_parsers.h"

#include <unistd.h>

LinuxMemorySource::LinuxMemorySource(const SysRoot& root)
    : meminfo_(root.join("proc/meminfo")), vmstat_(root.join("proc/vmstat")), swaps_(root.join("proc/swaps"))
{
}

std::optional<NamedCounters> LinuxMemorySource::memoryInfo()
{
    const std::lock_guard guard(lock_);
    const auto text = meminfo_.read();
    return text ? parseMeminfo(*text) : std::nullopt;
}

std::optional<NamedCounters> LinuxMemorySource::vmStatistics()
{
    const std::lock_guard guard(lock_);
    const auto text = vmstat_.read();
    return text ? parseVmstat(*text) : std::nullopt;
}

std::optional<std::vector<SwapArea>> LinuxMemorySource::swapAreas()
{
    const std::lock_guard guard(lock_);
    const auto text = swaps_.read();
    return text ? parseSwaps(*text) : std::nullopt;
}

std::size_t LinuxMemorySource::pageSize()
{
    const long size = ::sysconf(_SC_PAGESIZE);
    return size > 0 ? static_cast<std::size_t>(size) : 4096;
}
