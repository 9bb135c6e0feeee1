// Turns raw process scans into "%cpu" and "rss" rows.
#include "collect/process_cpu_sampler.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>

namespace {
long systemTicksPerSecond()
{
    const long ticks = sysconf(_SC_CLK_TCK);
    return ticks > 0 ? ticks : 100;
}

std::uint64_t systemPageSize()
{
    const long size = sysconf(_SC_PAGESIZE);
    return size > 0 ? static_cast<std::uint64_t>(size) : 4096;
}

// One decimal, as process tools print it, so that a process below 0.05% reads as idle.
double roundedPercent(double percent)
{
    return std::round(percent * 10) / 10;
}
} // namespace

ProcessCpuSampler::ProcessCpuSampler()
    : ProcessCpuSampler(systemTicksPerSecond(), systemPageSize())
{}

ProcessCpuSampler::ProcessCpuSampler(long ticksPerSecond, std::uint64_t pageSize)
    : ticksPerSecond_(ticksPerSecond)
    , pageSize_(pageSize)
{}

std::optional<std::vector<ProcessRow>> ProcessCpuSampler::sample(ProcessSource& source, std::string_view column,
                                                                 Clock::time_point now)
{
    const bool cpu = column == "%cpu";
    if (!cpu && column != "rss")
        return std::nullopt;
    auto scan = source.scanProcesses();
    if (!scan)
        return std::nullopt;

    std::vector<ProcessRow> rows;
    rows.reserve(scan->size());
    if (cpu) {
        const double elapsedTicks =
            prevTime_ ? std::chrono::duration<double>(now - *prevTime_).count() * static_cast<double>(ticksPerSecond_)
                      : 0;
        std::unordered_map<std::int64_t, std::uint64_t> ticks;
        ticks.reserve(scan->size());
        // Read once per scan, and only when some process has no earlier reading.
        std::optional<std::optional<double>> uptimeTicks;
        for (ProcessRecord& record : *scan) {
            double percent = 0;
            const auto previous = prevTicks_.find(record.pid);
            if (elapsedTicks > 0 && previous != prevTicks_.end() && record.cpuTicks >= previous->second) {
                percent = roundedPercent(static_cast<double>(record.cpuTicks - previous->second) / elapsedTicks * 100);
            } else {
                if (!uptimeTicks) {
                    const auto seconds = source.uptimeSeconds();
                    uptimeTicks =
                        seconds ? std::optional(*seconds * static_cast<double>(ticksPerSecond_)) : std::nullopt;
                }
                percent = shareSinceStart(record, *uptimeTicks);
            }
            ticks.emplace(record.pid, record.cpuTicks);
            rows.push_back({record.pid, std::move(record.command), percent});
        }
        // Processes that ended since the last scan fall out here with the old map.
        prevTicks_ = std::move(ticks);
        prevTime_ = now;
    } else {
        for (ProcessRecord& record : *scan)
            rows.push_back(
                {record.pid, std::move(record.command), static_cast<double>(record.residentPages * pageSize_ / 1024)});
    }
    std::sort(rows.begin(), rows.end(), [](const ProcessRow& a, const ProcessRow& b) {
        return a.value != b.value ? a.value > b.value : a.pid < b.pid;
    });
    return rows;
}

double ProcessCpuSampler::shareSinceStart(const ProcessRecord& record, std::optional<double> uptimeTicks) const
{
    // Started less than a tick ago, or on a clock ahead of the uptime read: no life to share.
    const double life = uptimeTicks ? *uptimeTicks - static_cast<double>(record.startTicks) : 0;
    if (life < 1)
        return 0;
    return roundedPercent(static_cast<double>(record.cpuTicks) / life * 100);
}
