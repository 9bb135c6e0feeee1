// The memory collectors: the page counts of each tick, swap usage and the swap-file data.
#include "collect/load_system_information.h"

#include "collect/memory_mapping.h"

#include <algorithm>
#include <limits>

std::optional<MemorySample> LoadSystemInformation::loadMemoryData(bool withPaging)
{
    MemorySource* memory = sources_.memory.get();
    if (!memory)
        return std::nullopt;
    const auto counters = memory->memoryCounters(withPaging);
    if (!counters)
        return std::nullopt;
    const std::size_t pageSize = memory->pageSize();
    // The switch only matters while the pool is empty: a filled pool shows zswap at work, and a
    // kernel that prints no pool cannot say what it holds either way.
    std::optional<bool> zswapEnabled;
    if (counters->zswap == 0u)
        zswapEnabled = memory->zswapEnabled();
    auto sample = memorySampleFrom(*counters, pageSize, zswapEnabled);
    if (sample) {
        cycleTotals_ = memoryTotalsFrom(*counters, pageSize);
        const std::lock_guard guard(memoryLock);
        lastMemoryTotals = cycleTotals_;
    }
    return sample;
}

std::optional<MemoryTotals> LoadSystemInformation::memoryTotals()
{
    {
        const std::lock_guard guard(memoryLock);
        if (lastMemoryTotals)
            return lastMemoryTotals;
    }
    return readMemoryTotals();
}

std::optional<MemoryTotals> LoadSystemInformation::readMemoryTotals()
{
    MemorySource* memory = sources_.memory.get();
    const auto counters = memory ? memory->memoryCounters(false) : std::nullopt;
    return counters ? memoryTotalsFrom(*counters, memory->pageSize()) : std::nullopt;
}

std::size_t LoadSystemInformation::memoryPageSize() const
{
    return sources_.memory ? sources_.memory->pageSize() : 4096;
}

std::optional<SwapUsage> LoadSystemInformation::loadSwapUsage()
{
    const auto areas = sources_.memory ? sources_.memory->swapAreas() : std::nullopt;
    cycleSwap_ = areas ? std::optional(swapUsageFrom(*areas)) : std::nullopt;
    return cycleSwap_;
}

void LoadSystemInformation::beginCycle()
{
    cycleSwap_.reset();
    cycleTotals_.reset();
}

std::optional<SwapUsage> LoadSystemInformation::cycleSwapUsage()
{
    return cycleSwap_ ? cycleSwap_ : loadSwapUsage();
}

std::optional<MemoryTotals> LoadSystemInformation::cycleMemoryTotals()
{
    if (!cycleTotals_)
        cycleTotals_ = readMemoryTotals();
    return cycleTotals_;
}

std::optional<MemoryOptionDelayData> LoadSystemInformation::loadMemoryOptionDelayData()
{
    MemorySource* memory = sources_.memory.get();
    const auto areas = memory ? memory->swapAreas() : std::nullopt;
    if (!areas)
        return std::nullopt;
    const auto image = memory->hibernationImageSize();
    const auto size =
        static_cast<std::int64_t>(std::min<std::uint64_t>(image.value_or(0), std::numeric_limits<std::int64_t>::max()));
    return swapFileDataFrom(*areas, size);
}
