// Directory listing with opendir/readdir: the process scan walks /proc with it.
#include "collect/linux/directory_names.h"

#include <algorithm>
#include <dirent.h>
#include <memory>
#include <string_view>

namespace {
// Orders runs of digits by value, so hwmon2 comes before hwmon10 and 99 before 100.
bool naturalLess(std::string_view a, std::string_view b)
{
    std::size_t i = 0;
    std::size_t j = 0;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    while (i < a.size() && j < b.size()) {
        if (isDigit(a[i]) && isDigit(b[j])) {
            std::size_t endA = i;
            std::size_t endB = j;
            while (endA < a.size() && a[endA] == '0')
                ++endA;
            while (endB < b.size() && b[endB] == '0')
                ++endB;
            std::size_t startA = endA;
            std::size_t startB = endB;
            while (endA < a.size() && isDigit(a[endA]))
                ++endA;
            while (endB < b.size() && isDigit(b[endB]))
                ++endB;
            const std::string_view runA = a.substr(startA, endA - startA);
            const std::string_view runB = b.substr(startB, endB - startB);
            if (runA.size() != runB.size())
                return runA.size() < runB.size();
            if (runA != runB)
                return runA < runB;
            i = endA;
            j = endB;
        } else {
            if (a[i] != b[j])
                return a[i] < b[j];
            ++i;
            ++j;
        }
    }
    return a.size() - i < b.size() - j;
}
}

std::optional<std::vector<std::string>> directoryNames(const std::filesystem::path& directory)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> dir(::opendir(directory.c_str()), &::closedir);
    if (!dir)
        return std::nullopt;
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(dir.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    // readdir order is the file system's; sorting keeps results stable across runs and trees.
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) { return naturalLess(a, b); });
    return names;
}
