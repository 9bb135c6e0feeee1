// Working out the watched figures from the newest samples of the histories.
#include "alerts/alert_figure.h"

#include "collect/cpu_sample.h"
#include "collect/disk_sample.h"
#include "collect/memory_sample.h"
#include "collect/network_sample.h"
#include "collect/sensor_dat.h"

#include <algorithm>

namespace {

constexpr double kKilo = 1024.0;

template <class Sample> History<Sample> historyOf(const InfoDict& info, ModuleId module)
{
    return info.history<Sample>(moduleIndex(module));
}

std::optional<double> cpuBusy(const InfoDict& info)
{
    const History<CpuSample> history = historyOf<CpuSample>(info, ModuleId::Cpu);
    if (history.empty() || history.back().empty())
        return std::nullopt;
    // The last record is the whole machine's.
    const CpuRecord& machine = history.back().back();
    const std::int64_t busy = machine[CpuUser] + machine[CpuSystem] + machine[CpuNice];
    const std::int64_t all = busy + machine[CpuIdle];
    if (busy < 0 || all <= 0)
        return std::nullopt;
    return 100.0 * static_cast<double>(busy) / static_cast<double>(all);
}

// The share the Memory picture shows as in use: all but free pages and cached files, of the
// machine's memory (or of the counted pages, should they add up to more).
std::optional<double> memoryUsed(const InfoDict& info, std::int64_t totalPages)
{
    const History<MemorySample> history = historyOf<MemorySample>(info, ModuleId::Memory);
    if (history.empty())
        return std::nullopt;
    const MemorySample& sample = history.back();
    const auto pages = [&sample](MemoryFigure which) { return std::max<std::int64_t>(sample[which], 0); };
    const std::int64_t free = pages(MemoryFree);
    const std::int64_t cached = pages(MemoryCached);
    const std::int64_t counted =
        pages(MemoryApplication) + pages(MemoryWired) + pages(MemoryCompressor) + cached + free;
    const std::int64_t total = std::max(totalPages, counted);
    if (total <= 0)
        return std::nullopt;
    return 100.0 * static_cast<double>(total - free - cached) / static_cast<double>(total);
}

// Of the swap space there is; none without swap (nothing to fill) or without a reading of this
// cycle: the Memory step empties the swap history when its sample came without one.
std::optional<double> swapUsed(const InfoDict& info)
{
    const History<SwapUsage> history = info.history<SwapUsage>(kSwapHistorySlot);
    if (history.empty() || history.back().total <= 0)
        return std::nullopt;
    const SwapUsage& swap = history.back();
    return 100.0 * static_cast<double>(std::clamp(swap.used, std::int64_t{0}, swap.total)) /
           static_cast<double>(swap.total);
}

// Counters become a rate over the seconds the newest sample covers; a counter that went back
// (an interface reset, a wrap) gives no rate rather than a huge one.
std::optional<double> rate(std::int64_t before, std::int64_t after, double seconds)
{
    if (after < before || seconds <= 0)
        return std::nullopt;
    return static_cast<double>(after - before) / seconds / kKilo;
}

std::optional<double> networkRate(const InfoDict& info, bool down)
{
    const History<NetworkSample> history = historyOf<NetworkSample>(info, ModuleId::Network);
    if (history.size() < 2)
        return std::nullopt;
    const NetworkSample& before = history[history.size() - 2];
    const NetworkSample& after = history.back();
    return down ? rate(before.toDw, after.toDw, after.interval) : rate(before.toUp, after.toUp, after.interval);
}

std::optional<double> diskRate(const InfoDict& info, std::size_t which)
{
    const History<DiskSample> history = historyOf<DiskSample>(info, ModuleId::Disk);
    if (history.size() < 2 || history.back().interval <= 0)
        return std::nullopt;
    const DiskSample& before = history[history.size() - 2];
    const DiskSample& after = history.back();
    std::uint64_t bytes = 0;
    // Only devices present in both samples: one just attached has no difference yet.
    for (const auto& [device, counters] : after.devices) {
        const auto old = before.devices.find(device);
        if (old != before.devices.end() && counters[which] >= old->second[which])
            bytes += counters[which] - old->second[which];
    }
    return static_cast<double>(bytes) / after.interval / kKilo;
}

std::optional<double> volumeFullest(const InfoDict& info)
{
    const History<VolumeSample> history = historyOf<VolumeSample>(info, ModuleId::Volume);
    if (history.empty())
        return std::nullopt;
    std::optional<double> fullest;
    for (const auto& [path, usage] : history.back().volumes) {
        if (usage.total > 0)
            fullest = std::max(fullest.value_or(0.0),
                               100.0 * static_cast<double>(usage.used) / static_cast<double>(usage.total));
    }
    return fullest;
}

std::optional<double> highestReading(const InfoDict& info, ModuleId module)
{
    const History<SensorSample> history = historyOf<SensorSample>(info, module);
    if (history.empty() || history.back().values.isEmpty())
        return std::nullopt;
    const auto& values = history.back().values;
    return static_cast<double>(*std::max_element(values.cbegin(), values.cend()));
}

std::optional<double> tempAverage(const InfoDict& info)
{
    const History<SensorSample> history = historyOf<SensorSample>(info, ModuleId::Temp);
    if (history.empty() || !history.back().average)
        return std::nullopt;
    return static_cast<double>(*history.back().average);
}

} // namespace

std::optional<double> readAlertFigure(AlertFigure figure, const InfoDict& info, const AlertFigureContext& context)
{
    switch (figure) {
    case AlertFigure::CpuBusy:
        return cpuBusy(info);
    case AlertFigure::MemoryUsed:
        return memoryUsed(info, context.memoryTotalPages);
    case AlertFigure::SwapUsed:
        return swapUsed(info);
    case AlertFigure::NetworkDown:
        return networkRate(info, true);
    case AlertFigure::NetworkUp:
        return networkRate(info, false);
    case AlertFigure::DiskRead:
        return diskRate(info, 0);
    case AlertFigure::DiskWrite:
        return diskRate(info, 1);
    case AlertFigure::VolumeFullest:
        return volumeFullest(info);
    case AlertFigure::TempAverage:
        return tempAverage(info);
    case AlertFigure::TempHighest:
        return highestReading(info, ModuleId::Temp);
    case AlertFigure::FanFastest:
        return highestReading(info, ModuleId::Fan);
    }
    return std::nullopt;
}
