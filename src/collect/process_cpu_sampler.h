// Per-process processor shares between two scans, and resident sizes, as sorted rows.
#pragma once

#include "collect/process_source.h"

#include <chrono>
#include <cstdint>
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

    // Rows for the value column "%cpu" or "rss", largest value first (ties by pid). For
    // "%cpu", a process first seen in this scan (or whose pid was reused: another start time)
    // counts as 0 rather than its share since it started: that would need the uptime too, and
    // it would stand out for one interval only. On the first call every share is 0. Empty when
    // the scan fails or the column is unknown.
    std::optional<std::vector<ProcessRow>> sample(ProcessSource& source, std::string_view column,
                                                  Clock::time_point now = Clock::now());
    // The same from a scan in pid order taken at now.
    std::optional<std::vector<ProcessRow>> sample(const std::vector<ProcessRecord>& scan, std::string_view column,
                                                  Clock::time_point now);

private:
    // A process's ticks at the previous "%cpu" scan.
    struct Seen {
        std::int64_t pid = 0;
        std::uint64_t startTime = 0;
        std::uint64_t ticks = 0;
    };
    std::vector<ProcessRow> cpuRows(const std::vector<ProcessRecord>& scan, Clock::time_point now);

    long ticksPerSecond_;
    std::uint64_t pageSize_;
    // Kept from scan to scan, so that a refresh every second reuses their storage.
    std::vector<ProcessRecord> scan_; // the scans of the first form
    std::vector<Seen> previous_;      // in pid order
    std::vector<Seen> current_;
    std::optional<Clock::time_point> prevTime_;
};
