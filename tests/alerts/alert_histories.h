// Synthetic histories for the alert tests: a figure set to a value by writing the sample that gives it.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/info_dict.h"
#include "collect/memory_sample.h"
#include "collect/network_sample.h"
#include "collect/sensor_dat.h"
#include "prefs/module_id.h"

// Appends a CPU sample whose machine record is busy percent busy.
inline void appendCpuBusy(InfoDict& info, int busy)
{
    const std::size_t slot = moduleIndex(ModuleId::Cpu);
    const CpuSample sample{{busy, 0, 0, 100 - busy}, {busy, 0, 0, 100 - busy}};
    info.setHistory(slot, info.history<CpuSample>(slot).appended(sample));
}

// Appends the swap usage the Memory step collects beside its sample: percent of 4 GiB in use.
inline void appendSwapUsed(InfoDict& info, int percent)
{
    constexpr std::int64_t total = 4LL << 30;
    const SwapUsage swap{total, total - total * percent / 100, total * percent / 100};
    info.setHistory(kSwapHistorySlot, info.history<SwapUsage>(kSwapHistorySlot).appended(swap));
}

inline void appendTempAverage(InfoDict& info, qint64 degrees)
{
    const std::size_t slot = moduleIndex(ModuleId::Temp);
    SensorSample sample;
    sample.values.insert(QStringLiteral("CPU Die"), degrees);
    sample.average = degrees;
    info.setHistory(slot, info.history<SensorSample>(slot).appended(sample));
}

// Appends a network sample received kbPerSecond KB/s since the previous one, over one second.
inline void appendNetworkDown(InfoDict& info, double kbPerSecond)
{
    const std::size_t slot = moduleIndex(ModuleId::Network);
    const History<NetworkSample> history = info.history<NetworkSample>(slot);
    NetworkSample sample;
    sample.toDw = (history.empty() ? 0 : history.back().toDw) + static_cast<std::int64_t>(kbPerSecond * 1024);
    sample.interval = 1;
    info.setHistory(slot, history.appended(sample));
}
