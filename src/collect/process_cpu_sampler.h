// Per-process processor shares between two scans, and resident sizes, as sorted rows.
#pragma once

#include "collect/process_source.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One line of the busiest-process list before names are resolved.
struct ProcessRow {
    std::int64_t pid = 0;
    std::string command;
    double value = 0; // "%cpu": percent of one processor, in tenths; "rss": KiB
};

// Not thread-safe: the owner serialises calls. Only "%cpu" samples move the reference scan,
// so a memory listing in between does not shorten the processor interval.
class ProcessCpuSampler {
public:
    using Clock = std::chrono::steady_clock;

    ProcessCpuSampler(); // the running system's clock rate and page size
    ProcessCpuSampler(long ticksPerSecond, std::uint64_t pageSize);

    // Seconds since boot on the clock that start times count on, when known.
    using Uptime = std::function<std::optional<double>()>;

    // Rows for the value column "%cpu" or "rss", largest value first (ties by pid). For
    // "%cpu", a process seen in the previous scan gets its share of the interval between the
    // two; one first seen in this scan (every process on the first call, or one whose pid was
    // reused: another start time) gets its share since it started, so that a list opened for
    // the first time is not all zeros. Empty when the scan fails or the column is unknown.
    std::optional<std::vector<ProcessRow>> sample(ProcessSource& source, std::string_view column,
                                                  Clock::time_point now = Clock::now());
    // The same from a scan in pid order taken at now; without an uptime, first-seen shares are 0.
    std::optional<std::vector<ProcessRow>> sample(const std::vector<ProcessRecord>& scan, std::string_view column,
                                                  Clock::time_point now, const Uptime& uptime = {});

private:
    // A process's ticks at the previous "%cpu" scan.
    struct Seen {
        std::int64_t pid = 0;
        std::uint64_t startTime = 0;
        std::uint64_t ticks = 0;
    };
    std::vector<ProcessRow> cpuRows(const std::vector<ProcessRecord>& scan, Clock::time_point now,
                                    const Uptime& uptime);
    // The share of one processor that ticks of processor time make over the process's life.
    double shareSinceStart(const ProcessRecord& record, std::optional<double> uptimeTicks) const;

    long ticksPerSecond_;
    std::uint64_t pageSize_;
    // Kept from scan to scan, so that a refresh every second reuses their storage.
    std::vector<ProcessRecord> scan_; // the scans of the first form
    std::vector<Seen> previous_;      // in pid order
    std::vector<Seen> current_;
    std::optional<Clock::time_point> prevTime_;
};
