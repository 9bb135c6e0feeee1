// The Linux memory counters mapped onto the memory records.
#include "collect/memory_mapping.h"

#include <algorithm>
#include <filesystem>
#include <limits>

namespace {

using Counter = std::optional<std::uint64_t>;

// The split anon/file counts, or the kernel's older single count.
Counter listSize(const Counter& anon, const Counter& file, const Counter& whole)
{
    if (anon && file)
        return *anon + *file;
    return whole;
}

std::int64_t clamped(std::uint64_t value)
{
    return static_cast<std::int64_t>(std::min<std::uint64_t>(value, std::numeric_limits<std::int64_t>::max()));
}

std::int64_t pages(std::uint64_t bytes, std::size_t pageSize)
{
    return clamped(bytes / pageSize);
}

// Shmem is counted in Cached but cannot be dropped like file contents.
std::uint64_t droppableCache(const MemoryCounters& c)
{
    const std::uint64_t cached = c.cached.value_or(0);
    const std::uint64_t shmem = c.shmem.value_or(0);
    return cached > shmem ? cached - shmem : 0;
}

} // namespace

std::optional<MemorySample> memorySampleFrom(const MemoryCounters& c, std::size_t pageSize,
                                             std::optional<bool> zswapEnabled)
{
    const Counter active = listSize(c.activeAnon, c.activeFile, c.active);
    const Counter inactive = listSize(c.inactiveAnon, c.inactiveFile, c.inactive);
    if (!c.memTotal || !c.memFree || !active || !inactive || pageSize == 0)
        return std::nullopt;

    MemorySample sample;
    sample[MemoryWired] = pages(c.unevictable.value_or(0) + c.sUnreclaim.value_or(0) + c.kernelStack.value_or(0) +
                                    c.pageTables.value_or(0),
                                pageSize);
    sample[MemoryActive] = pages(*active, pageSize);
    sample[MemoryInactive] = pages(*inactive, pageSize);
    sample[MemoryFree] = pages(*c.memFree, pageSize);
    sample[MemoryPageIns] = c.pswpin ? clamped(*c.pswpin) : -1;
    sample[MemoryPageOuts] = c.pswpout ? clamped(*c.pswpout) : -1;
    sample[MemorySpeculative] = -1;
    // A pool that still holds pages counts even after zswap was switched off: those pages stay
    // in memory until they are written back or faulted in.
    const bool zswapOn = zswapEnabled.value_or(false) || c.zswap.value_or(0) > 0;
    sample[MemoryCompressor] = zswapOn && c.zswap ? pages(*c.zswap, pageSize) : -1;
    sample[MemoryApplication] = pages(c.anonPages.value_or(0) + c.shmem.value_or(0), pageSize);
    sample[MemoryCached] = pages(droppableCache(c) + c.buffers.value_or(0), pageSize);
    return sample;
}

std::optional<MemoryTotals> memoryTotalsFrom(const MemoryCounters& c, std::size_t pageSize)
{
    if (!c.memTotal || pageSize == 0)
        return std::nullopt;
    const std::uint64_t available = c.memAvailable.value_or(c.memFree.value_or(0) + c.buffers.value_or(0) +
                                                            droppableCache(c) + c.sReclaimable.value_or(0));
    return MemoryTotals{pages(*c.memTotal, pageSize), pages(std::min(available, *c.memTotal), pageSize)};
}

SwapUsage swapUsageFrom(const std::vector<SwapArea>& areas)
{
    std::uint64_t totalKiB = 0;
    std::uint64_t usedKiB = 0;
    for (const SwapArea& area : areas) {
        totalKiB += area.sizeKiB;
        usedKiB += area.usedKiB;
    }
    const std::int64_t total = clamped(totalKiB * 1024);
    const std::int64_t used = clamped(usedKiB * 1024);
    return {total, total - used, used};
}

MemoryOptionDelayData swapFileDataFrom(const std::vector<SwapArea>& areas, std::int64_t sleepImageSize)
{
    MemoryOptionDelayData data;
    data.swapFileCount = static_cast<std::int64_t>(areas.size());
    data.sleepImageSize = sleepImageSize;
    if (!areas.empty()) {
        const SwapArea& first = areas.front();
        const std::filesystem::path area(first.filename);
        const std::filesystem::path where = first.type == "file" ? area.parent_path() : area;
        data.vmPath = QString::fromStdString(where.string());
    }
    return data;
}
