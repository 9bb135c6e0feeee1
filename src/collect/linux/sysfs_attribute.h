// One-shot reads of small sysfs attribute files, trimmed and parsed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

// The file's text without surrounding blanks, line ends and trailing NULs (device-tree strings
// end in one); empty when it is unreadable or holds nothing.
std::optional<std::string> readAttributeText(const std::filesystem::path& path);

std::optional<std::int64_t> readAttributeInteger(const std::filesystem::path& path);

// Decimal, or hexadecimal with a "0x" prefix (interface flags are printed that way).
std::optional<std::uint64_t> readAttributeUnsigned(const std::filesystem::path& path);
