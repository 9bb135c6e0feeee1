// Parsers for /proc/stat: per-processor ticks and the boot time.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/cpu_source.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// The "cpuN" lines folded into user, system, nice, idle (the aggregate "cpu" line is skipped):
// system takes irq, softirq and steal, idle takes iowait; guest time is already inside user.
// Missing trailing columns count as 0, extra columns are ignored. Empty without any cpuN line.
std::optional<std::vector<ProcessorTicks>> parseProcessorTicks(std::string_view text);

// Seconds since the epoch from the "btime" line.
std::optional<std::int64_t> parseBootTime(std::string_view text);
