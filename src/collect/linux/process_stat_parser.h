// Parser for /proc/<pid>/stat.
#pragma once

#include "collect/parsed.h"
#include "collect/process_source.h"

#include <string_view>

// The command name is the text between the first "(" and the last ")": it may itself hold
// blanks and parentheses. Rejected when the line is cut short or malformed.
Parsed<ProcessRecord> parseProcessStat(std::string_view text);
