// Parser for /proc/diskstats.
#pragma once

#include "collect/block_device_source.h"
#include "collect/parsed.h"

#include <string_view>
#include <vector>

// Rows of 14 fields (before kernel 4.18), 18 (with discards) and 20 (with flushes) all occur;
// shorter rows are skipped and fields past the 20th are ignored. Rejected without any row,
// blaming the first line skipped.
Parsed<std::vector<DiskStatistics>> parseDiskstats(std::string_view text);
