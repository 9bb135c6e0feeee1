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
    // An unknown column is turned down before the processes are read.
    if ((column != "%cpu" && column != "rss") || !source.rescan(scan_))
        return std::nullopt;
    return sample(scan_, column, now, [&source] { return source.uptimeSeconds(); });
}

std::optional<std::vector<ProcessRow>> ProcessCpuSampler::sample(const std::vector<ProcessRecord>& scan,
                                                                 std::string_view column, Clock::time_point now,
                                                                 const Uptime& uptime)
{
    const bool cpu = column == "%cpu";
    if (!cpu && column != "rss")
        return std::nullopt;
    std::vector<ProcessRow> rows;
    if (cpu) {
        rows = cpuRows(scan, now, uptime);
    } else {
        rows.reserve(scan.size());
        for (const ProcessRecord& record : scan)
            rows.push_back({record.pid, record.command, static_cast<double>(record.residentPages * pageSize_ / 1024)});
    }
    std::sort(rows.begin(), rows.end(), [](const ProcessRow& a, const ProcessRow& b) {
        return a.value != b.value ? a.value > b.value : a.pid < b.pid;
    });
    return rows;
}

double ProcessCpuSampler::shareSinceStart(const ProcessRecord& record, std::optional<double> uptimeTicks) const
{
    // Started less than a tick ago, or on a clock ahead of the uptime read: no life to share.
    const double life = uptimeTicks ? *uptimeTicks - static_cast<double>(record.startTime) : 0;
    if (life < 1)
        return 0;
    return roundedPercent(static_cast<double>(record.cpuTicks) / life * 100);
}

std::vector<ProcessRow> ProcessCpuSampler::cpuRows(const std::vector<ProcessRecord>& scan, Clock::time_point now,
                                                   const Uptime& uptime)
{
    const double elapsedTicks =
        prevTime_ ? std::chrono::duration<double>(now - *prevTime_).count() * static_cast<double>(ticksPerSecond_) : 0;
    std::vector<ProcessRow> rows;
    rows.reserve(scan.size());
    current_.clear();
    std::optional<std::optional<double>> uptimeTicks;
    // Both lists are in pid order: the previous one is walked alongside.
    auto previous = previous_.cbegin();
    for (const ProcessRecord& record : scan) {
        while (previous != previous_.cend() && previous->pid < record.pid)
            ++previous;
        double percent = 0;
        if (elapsedTicks > 0 && previous != previous_.cend() && previous->pid == record.pid &&
            previous->startTime == record.startTime && record.cpuTicks >= previous->ticks) {
            percent = roundedPercent(static_cast<double>(record.cpuTicks - previous->ticks) / elapsedTicks * 100);
        } else {
            // First seen (every process at the first scan): its share since it started, so that a
            // list opened for the first time is not all zeros. The uptime is read once, if at all.
            if (!uptimeTicks && uptime) {
                const std::optional<double> seconds = uptime();
                uptimeTicks = seconds ? std::optional(*seconds * static_cast<double>(ticksPerSecond_)) : std::nullopt;
            }
            percent = uptimeTicks ? shareSinceStart(record, *uptimeTicks) : 0;
        }
        current_.push_back({record.pid, record.startTime, record.cpuTicks});
        // Kernel command names fit a short string's own storage: no allocation per row.
        rows.push_back({record.pid, record.command, percent});
    }
    // Processes that ended since the last scan fall out here with the old list.
    previous_.swap(current_);
    prevTime_ = now;
    return rows;
}
