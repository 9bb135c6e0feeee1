// Parsers for /proc/<pid>/stat and for /proc/uptime, the clock that its start times count on.
#pragma once

#include "collect/parsed.h"
#include "collect/process_source.h"

#include <string_view>

// The command name is the text between the first "(" and the last ")": it may itself hold
// blanks and parentheses. Rejected when the line is cut short or malformed.
Parsed<ProcessRecord> parseProcessStat(std::string_view text);

// The first field of /proc/uptime: seconds since boot, suspended time included.
Parsed<double> parseUptime(std::string_view text);
