// The figures only the export wants from a cycle, gathered on the cycle's thread with the rest.
#pragma once

#include "collect/cpu_source.h"
#include "collect/memory_sample.h"
#include "collect/network_source.h"

#include <optional>
#include <vector>

class LoadSystemInformation;

struct ExportExtras {
    std::optional<LoadAverages> loads;
    std::optional<SwapUsage> swap;
    std::optional<MemoryTotals> memory;
    // Every interface's counters since boot, loopback included.
    std::optional<std::vector<InterfaceCounters>> interfaces;
};

// Each figure empty when its source cannot be read.
ExportExtras collectExportExtras(LoadSystemInformation& loadInfo);
