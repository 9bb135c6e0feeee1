// Parser for /proc/loadavg.
#pragma once

#include "collect/cpu_source.h"
#include "collect/parsed.h"

#include <cstdint>
#include <optional>
#include <string_view>

struct LoadAverageLine {
    LoadAverages averages;
    // The fourth field "running/total": the total counts every scheduling entity (thread).
    std::optional<std::uint64_t> runnable;
    std::optional<std::uint64_t> schedulingEntities;
};

// Rejected unless the three averages are present.
Parsed<LoadAverageLine> parseLoadAverage(std::string_view text);
