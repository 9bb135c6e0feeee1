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
    // "%cpu", a process seen in the previous scan gets its share of the interval between the
    // two; one first seen in this scan (every process on the first call, or one whose pid was
    // reused) gets its share since it started, so that a list opened for the first time is
    // not all zeros. Empty when the scan fails or the column is unknown.
    std::optional<std::vector<ProcessRow>> sample(ProcessSource& source, std::string_view column,
                                                  Clock::time_point now = Clock::now());

private:
    // The share of one processor that ticks of processor time make over the process's life.
    double shareSinceStart(const ProcessRecord& record, std::optional<double> uptimeTicks) const;

    long ticksPerSecond_;
    std::uint64_t pageSize_;
    std::unordered_map<std::int64_t, std::uint64_t> prevTicks_;
    std::optional<Clock::time_point> prevTime_;
};
