// Parser for /proc/net/dev.
#pragma once

#include "collect/network_source.h"
#include "collect/parsed.h"

#include <string_view>
#include <vector>

// One record per interface row, in file order; the two header lines are skipped. Rejected when
// the text has no interface row at all, blaming the first row short of its counters.
Parsed<std::vector<InterfaceCounters>> parseNetDev(std::string_view text);
