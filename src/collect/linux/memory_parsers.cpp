// Memory counter parsers: name/value tables and the swap list.
#include "collect/linux/memory_parsers.h"

#include "collect/linux/text_fields.h"

std::optional<NamedCounters> parseMeminfo(std::string_view text)
{
    NamedCounters counters;
    std::string_view line;
    while (takeLine(text, line)) {
        const auto colon = line.find(':');
        if (colon == std::string_view::npos || colon == 0)
            continue;
        std::string_view rest = line.substr(colon + 1);
        const auto value = parseNumber<std::uint64_t>(takeField(rest));
        if (!value)
            continue;
        const std::string_view unit = trimSpace(takeField(rest));
        const std::uint64_t scale = unit == "kB" ? 1024 : 1;
        counters.insert_or_assign(std::string(line.substr(0, colon)), *value * scale);
    }
    if (counters.empty())
        return std::nullopt;
    return counters;
}

std::optional<NamedCounters> parseVmstat(std::string_view text)
{
    NamedCounters counters;
    std::string_view line;
    while (takeLine(text, line)) {
        std::string_view rest = line;
        const std::string_view name = takeField(rest);
        const auto value = parseNumber<std::uint64_t>(trimSpace(takeField(rest)));
        if (!name.empty() && value)
            counters.insert_or_assign(std::string(name), *value);
    }
    if (counters.empty())
        return std::nullopt;
    return counters;
}

std::optional<std::vector<SwapArea>> parseSwaps(std::string_view text)
{
    std::string_view line;
    if (!takeLine(text, line) || !line.starts_with("Filename"))
        return std::nullopt;
    std::vector<SwapArea> areas;
    while (takeLine(text, line)) {
        std::string_view rest = line;
        const std::string_view filename = takeField(rest);
        const std::string_view type = takeField(rest);
        const auto size = parseNumber<std::uint64_t>(takeField(rest));
        const auto used = parseNumber<std::uint64_t>(takeField(rest));
        if (filename.empty() || !size || !used)
            continue;
        areas.push_back({unescapeOctal(filename), std::string(type), *size, *used});
    }
    return areas;
}
