// Source of process facts: how many threads and processes run, and a raw per-process scan.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct ProcessCounts {
    std::int64_t threads = 0;
    std::int64_t processes = 0;
};

// One process as the kernel accounts it; no names are resolved and nothing is sorted.
struct ProcessRecord {
    std::int64_t pid = 0;
    std::string command;        // the short command name the kernel keeps
    std::uint64_t cpuTicks = 0; // user plus system time, in clock ticks
    std::uint64_t residentPages = 0;
    std::int64_t threads = 0;
    // Clock ticks after boot at which it started: with the pid, what tells it from an earlier
    // process that had the same pid.
    std::uint64_t startTime = 0;
};

class ProcessSource {
public:
    virtual ~ProcessSource() = default;
    virtual std::optional<ProcessCounts> counts() = 0;
    // Every process that could be read; processes that end during the scan are left out.
    virtual std::optional<std::vector<ProcessRecord>> scanProcesses() = 0;
    // Seconds since boot on the clock that start times count on (suspended time included).
    virtual std::optional<double> uptimeSeconds() { return std::nullopt; }
    // The same in pid order into records (emptied first, its storage kept for the next scan),
    // for scans repeated every second; false when the processes cannot be listed.
    virtual bool rescan(std::vector<ProcessRecord>& records)
    {
        auto scan = scanProcesses();
        if (!scan)
            return false;
        records = std::move(*scan);
        std::sort(records.begin(), records.end(), [](const auto& a, const auto& b) { return a.pid < b.pid; });
        return true;
    }
    // The program file a process runs, when the system lets this user see it. Asked for one
    // process at a time so that a scan for figures alone does not pay for it.
    virtual std::optional<std::string> executablePath(std::int64_t /*pid*/) { return std::nullopt; }
};
