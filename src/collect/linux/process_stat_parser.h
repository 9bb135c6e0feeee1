// Parser for /proc/<pid>/stat.
#pragma once

#include "collect/process_source.h"

#include <optional>
#include <string_view>

// The command name is the text between the first "(" and the last ")": it may itself hold
// blanks and parentheses. Empty when the line is cut short or malformed.
std::optional<ProcessRecord> parseProcessStat(std::string_view text);
