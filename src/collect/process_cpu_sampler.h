// Per-process processor shares between two scans, and resident sizes, as sorted rows.
#pragma once

#include "collect/process_source.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
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
    // "%cpu", a process first seen in this scan (or whose pid was reused) counts as 0 rather
    // than its share since it started: that would need its start time and the uptime, two
    // more reads per process, and it would stand out for one interval only. On the first
    // call every share is 0. Empty when the scan fails or the column is unknown.
    std::optional<std::vector<ProcessRow>> sample(ProcessSource& source, std::string_view column,
                                                  Clock::time_point now = Clock::now());

private:
    long ticksPerSecond_;
    std::uint64_t pageSize_;
    std::unordered_map<std::int64_t, std::uint64_t> prevTicks_;
    std::optional<Clock::time_point> prevTime_;
};
