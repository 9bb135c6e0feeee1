// Lists a directory's entry names without the cost of building a path per entry.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// Entry names other than "." and "..", with numbers in names ordered by value (hwmon2 before
// hwmon10); empty when the directory cannot be read.
std::optional<std::vector<std::string>> directoryNames(const std::filesystem::path& directory);
