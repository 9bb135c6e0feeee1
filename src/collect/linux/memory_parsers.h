// Parsers for /proc/meminfo, /proc/vmstat and /proc/swaps.
#pragma once

#include "collect/memory_source.h"

#include <optional>
#include <string_view>
#include <vector>

// "Name:   123 kB" lines; a "kB" value is turned into bytes (1024 each), a value without a unit
// (HugePages_Total and the like) is kept as a count. Empty when no line parses.
std::optional<NamedCounters> parseMeminfo(std::string_view text);

// "name value" lines. Empty when no line parses.
std::optional<NamedCounters> parseVmstat(std::string_view text);

// The sample's figures only, with no table built (they are read every tick). Fields the text
// does not hold are left as they were; false when none was found.
bool scanMeminfo(std::string_view text, MemoryCounters& counters);
bool scanVmstat(std::string_view text, MemoryCounters& counters);

// The rows under the header; escaped characters in file names are decoded. A file with only
// the header gives an empty list (no swap), not an empty optional.
std::optional<std::vector<SwapArea>> parseSwaps(std::string_view text);
