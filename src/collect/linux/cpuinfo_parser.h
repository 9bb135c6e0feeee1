// Parser for /proc/cpuinfo.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The "model name" of the first processor listed; empty when there is none or it is blank.
std::optional<std::string> parseFirstModelName(std::string_view text);
