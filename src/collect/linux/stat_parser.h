// Parsers for /proc/stat: per-processor ticks and the boot time.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/cpu_source.h"
#include "collect/parsed.h"

#include <cstdint>
#include <string_view>
#include <vector>

// The "cpuN" lines folded into user, system, nice, idle (the aggregate "cpu" line is skipped):
// system takes irq, softirq and steal, idle takes iowait; guest time is already inside user.
// Missing trailing columns count as 0, extra columns are ignored. Rejected without any cpuN
// line, blaming the first line passed over.
Parsed<std::vector<ProcessorTicks>> parseProcessorTicks(std::string_view text);

// Seconds since the epoch from the "btime" line; rejected without one or when it holds no number.
Parsed<std::int64_t> parseBootTime(std::string_view text);
