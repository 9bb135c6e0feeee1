// The raw figures behind the CPU menu's five detail lines, read in one go.
#pragma once

#include "collect/cpu_source.h"
#include "collect/process_source.h"

#include <optional>
#include <string>

struct CpuOptionFigures {
    // Wall-clock seconds since boot, sleep included; empty when the boot time is unknown or 0.
    std::optional<double> secondsSinceBoot;
    // Seconds the system has run (not suspended) since boot.
    std::optional<double> awakeSeconds;
    std::optional<ProcessCounts> counts;
    // Present only when all three averages could be read.
    std::optional<LoadAverages> loads;
    std::optional<std::string> hostName;
};
