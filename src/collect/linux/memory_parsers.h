// Parsers for /proc/meminfo, /proc/vmstat and /proc/swaps.
#pragma once

#include "collect/memory_source.h"
#include "collect/parsed.h"

#include <string_view>
#include <vector>

// "Name:   123 kB" lines; a "kB" value is turned into bytes (1024 each), a value without a unit
// (HugePages_Total and the like) is kept as a count. Rejected when no line parses, blaming the
// first that did not.
Parsed<NamedCounters> parseMeminfo(std::string_view text);

// "name value" lines. Rejected when no line parses.
Parsed<NamedCounters> parseVmstat(std::string_view text);

// The sample's figures only, with no table built (they are read every tick): counters with
// the fields the text holds filled in, the others as they were. Rejected when none was found,
// blaming a wanted line that held no number if there was one.
Parsed<MemoryCounters> scanMeminfo(std::string_view text, MemoryCounters counters);
Parsed<MemoryCounters> scanVmstat(std::string_view text, MemoryCounters counters);

// The rows under the header; escaped characters in file names are decoded. A file with only
// the header gives an empty list (no swap); one without the header is rejected.
Parsed<std::vector<SwapArea>> parseSwaps(std::string_view text);
