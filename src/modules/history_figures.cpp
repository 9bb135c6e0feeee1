// Reading each module's newest sample into the figures its graph draws.
#include "modules/history_figures.h"

#include "collect/cpu_sample.h"
#include "collect/disk_sample.h"
#include "collect/load_system_information.h"
#include "collect/memory_sample.h"
#include "collect/network_sample.h"
#include "collect/sensor_dat.h"
#include "modules/disk/disk_rates.h"
#include "modules/memory/memory_breakdown.h"
#include "modules/module_descriptor.h"
#include "modules/network/network_rates.h"
#include "modules/volume/volume_usage.h"

namespace {

QList<Figure> cpuFigures(const InfoDict& info)
{
    const History<CpuSample> history = moduleHistory<CpuSample>(info, ModuleId::Cpu);
    if (history.empty() || history.back().empty())
        return {};
    // The last record is the whole machine.
    const CpuRecord& r = history.back().back();
    const double total = static_cast<double>(r[CpuUser] + r[CpuSystem] + r[CpuNice] + r[CpuIdle]);
    if (total <= 0)
        return {};
    const double busy = static_cast<double>(r[CpuUser] + r[CpuSystem] + r[CpuNice]) / total * 100;
    return {{QStringLiteral("cpu"), QStringLiteral("busy"), FigureUnit::Percent, busy}};
}

QList<Figure> memoryFigures(const InfoDict& info, LoadSystemInformation& loadInfo)
{
    const History<MemorySample> history = moduleHistory<MemorySample>(info, ModuleId::Memory);
    const std::optional<MemoryTotals> totals = loadInfo.memoryTotals();
    if (history.empty() || !totals)
        return {};
    const MemorySample& sample = history.back();
    const auto page = static_cast<double>(loadInfo.memoryPageSize());
    const MemoryBreakdown parts = memoryBreakdown(sample, totals->totalPages, false);
    const QString module = QStringLiteral("memory");
    QList<Figure> figures{
        {module, QStringLiteral("used"), FigureUnit::Bytes, static_cast<double>(parts.inUse()) * page}};
    for (const auto& [name, figure] : {std::pair{"app", MemoryApplication}, std::pair{"cached", MemoryCached}}) {
        if (sample[figure] >= 0)
            figures.append(
                {module, QLatin1String(name), FigureUnit::Bytes, static_cast<double>(sample[figure]) * page});
    }
    // Collected with the sample while the history is kept; none when it could not be read.
    if (const History<SwapUsage> swap = info.history<SwapUsage>(kSwapHistorySlot); !swap.empty())
        figures.append({module, QStringLiteral("swap used"), FigureUnit::Bytes, static_cast<double>(swap.back().used)});
    return figures;
}

QList<Figure> networkFigures(const InfoDict& info)
{
    const History<NetworkSample> history = moduleHistory<NetworkSample>(info, ModuleId::Network);
    if (history.size() < 2)
        return {};
    const NetworkRates rates = currentNetworkRates(history);
    const QString module = QStringLiteral("network");
    return {{module, QStringLiteral("up"), FigureUnit::BytesPerSecond, rates.up},
            {module, QStringLiteral("down"), FigureUnit::BytesPerSecond, rates.down}};
}

// Devices that hand their transfers on to others (loop, dm, md) would count them twice.
QList<Figure> diskFigures(const InfoDict& info)
{
    const History<DiskSample> history = moduleHistory<DiskSample>(info, ModuleId::Disk);
    QList<Figure> figures;
    if (history.size() < 2)
        return figures;
    const QString module = QStringLiteral("disk");
    for (const auto& [device, counters] : history.back().devices) {
        if (!countsInCombinedRates(device))
            continue;
        if (const std::optional<DiskRates> rates = diskRatesAt(history, history.size() - 1, device)) {
            figures.append({module, device + QStringLiteral(" read"), FigureUnit::BytesPerSecond, rates->read});
            figures.append({module, device + QStringLiteral(" write"), FigureUnit::BytesPerSecond, rates->write});
        }
    }
    return figures;
}

QList<Figure> volumeFigures(const InfoDict& info)
{
    const History<VolumeSample> history = moduleHistory<VolumeSample>(info, ModuleId::Volume);
    QList<Figure> figures;
    if (history.empty())
        return figures;
    for (const auto& [path, usage] : history.back().volumes) {
        if (usage.total > 0)
            figures.append({QStringLiteral("volume"), path, FigureUnit::Percent, usedFraction(usage) * 100});
    }
    return figures;
}

QList<Figure> sensorFigures(const InfoDict& info, ModuleId id)
{
    const History<SensorSample> history = moduleHistory<SensorSample>(info, id);
    QList<Figure> figures;
    if (history.empty())
        return figures;
    const SensorSample& sample = history.back();
    const bool temp = id == ModuleId::Temp;
    const QString module = temp ? QStringLiteral("temp") : QStringLiteral("fan");
    const FigureUnit unit = temp ? FigureUnit::Celsius : FigureUnit::Rpm;
    if (sample.average)
        figures.append({module, QStringLiteral("average"), unit, static_cast<double>(*sample.average)});
    // Each sensor is already in the sample; each fan would add little to the average.
    if (temp) {
        for (auto it = sample.values.cbegin(); it != sample.values.cend(); ++it)
            figures.append({module, it.key(), unit, static_cast<double>(it.value())});
    }
    return figures;
}

} // namespace

QString historyModuleKey(ModuleId id)
{
    switch (id) {
    case ModuleId::Cpu:
        return QStringLiteral("cpu");
    case ModuleId::Memory:
        return QStringLiteral("memory");
    case ModuleId::Network:
        return QStringLiteral("network");
    case ModuleId::Disk:
        return QStringLiteral("disk");
    case ModuleId::Volume:
        return QStringLiteral("volume");
    case ModuleId::Temp:
        return QStringLiteral("temp");
    case ModuleId::Fan:
        return QStringLiteral("fan");
    default:
        return {};
    }
}

QList<Figure> headlineFigures(ModuleId id, const InfoDict& info, LoadSystemInformation& loadInfo)
{
    switch (id) {
    case ModuleId::Cpu:
        return cpuFigures(info);
    case ModuleId::Memory:
        return memoryFigures(info, loadInfo);
    case ModuleId::Network:
        return networkFigures(info);
    case ModuleId::Disk:
        return diskFigures(info);
    case ModuleId::Volume:
        return volumeFigures(info);
    case ModuleId::Temp:
    case ModuleId::Fan:
        return sensorFigures(info, id);
    default:
        return {};
    }
}
