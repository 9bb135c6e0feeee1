// Parser for /proc/net/dev.
#pragma once

#include "collect/network_source.h"

#include <optional>
#include <string_view>
#include <vector>

// One record per interface row, in file order; the two header lines are skipped. Empty when
// the text has no interface row at all.
std::optional<std::vector<InterfaceCounters>> parseNetDev(std::string_view text);
