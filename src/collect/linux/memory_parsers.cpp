// Memory counter parsers: name/value tables, the sample's figures and the swap list.
#include "collect/linux/memory_parsers.h"

#include "collect/linux/text_fields.h"

namespace {

using Field = std::optional<std::uint64_t> MemoryCounters::*;

// A name with the separator that ends it, so that "Active:" does not match "Active(anon):".
struct NamedField {
    std::string_view key;
    Field field;
};

constexpr NamedField kMeminfoFields[] = {
    {"MemTotal:", &MemoryCounters::memTotal},
    {"MemFree:", &MemoryCounters::memFree},
    {"MemAvailable:", &MemoryCounters::memAvailable},
    {"Buffers:", &MemoryCounters::buffers},
    {"Cached:", &MemoryCounters::cached},
    {"Active:", &MemoryCounters::active},
    {"Inactive:", &MemoryCounters::inactive},
    {"Active(anon):", &MemoryCounters::activeAnon},
    {"Inactive(anon):", &MemoryCounters::inactiveAnon},
    {"Active(file):", &MemoryCounters::activeFile},
    {"Inactive(file):", &MemoryCounters::inactiveFile},
    {"Unevictable:", &MemoryCounters::unevictable},
    {"Zswap:", &MemoryCounters::zswap},
    {"AnonPages:", &MemoryCounters::anonPages},
    {"Shmem:", &MemoryCounters::shmem},
    {"SReclaimable:", &MemoryCounters::sReclaimable},
    {"SUnreclaim:", &MemoryCounters::sUnreclaim},
    {"KernelStack:", &MemoryCounters::kernelStack},
    {"PageTables:", &MemoryCounters::pageTables},
};

constexpr NamedField kVmstatFields[] = {
    {"pswpin ", &MemoryCounters::pswpin},
    {"pswpout ", &MemoryCounters::pswpout},
};

// One "Name:   123 kB" line; a value in kB comes back in bytes.
bool meminfoLine(std::string_view line, std::string_view& name, std::uint64_t& value)
{
    const auto colon = line.find(':');
    if (colon == std::string_view::npos || colon == 0)
        return false;
    std::string_view rest = line.substr(colon + 1);
    const auto number = parseNumber<std::uint64_t>(takeField(rest));
    if (!number)
        return false;
    const std::string_view unit = trimSpace(takeField(rest));
    name = line.substr(0, colon);
    value = *number * (unit == "kB" ? 1024 : 1);
    return true;
}

bool vmstatLine(std::string_view line, std::string_view& name, std::uint64_t& value)
{
    std::string_view rest = line;
    name = takeField(rest);
    const auto number = parseNumber<std::uint64_t>(trimSpace(takeField(rest)));
    if (name.empty() || !number)
        return false;
    value = *number;
    return true;
}

// The whole line that starts with key; empty when no line does.
std::optional<std::string_view> lineStartingWith(std::string_view text, std::string_view key)
{
    for (std::size_t at = text.find(key); at != std::string_view::npos; at = text.find(key, at + 1)) {
        if (at == 0 || text[at - 1] == '\n') {
            const auto end = text.find('\n', at);
            return text.substr(at, end == std::string_view::npos ? std::string_view::npos : end - at);
        }
    }
    return std::nullopt;
}

// Looks for each wanted line rather than walking every line: vmstat has some two hundred, and
// this runs every tick.
template <std::size_t N>
bool scanInto(std::string_view text, const NamedField (&fields)[N],
              bool (*parseLine)(std::string_view, std::string_view&, std::uint64_t&), MemoryCounters& counters)
{
    bool any = false;
    std::string_view name;
    std::uint64_t value = 0;
    for (const NamedField& field : fields) {
        const auto line = lineStartingWith(text, field.key);
        if (!line || !parseLine(*line, name, value))
            continue;
        counters.*(field.field) = value;
        any = true;
    }
    return any;
}

} // namespace

std::optional<NamedCounters> parseMeminfo(std::string_view text)
{
    NamedCounters counters;
    std::string_view line;
    std::string_view name;
    std::uint64_t value = 0;
    while (takeLine(text, line)) {
        if (meminfoLine(line, name, value))
            counters.insert_or_assign(std::string(name), value);
    }
    if (counters.empty())
        return std::nullopt;
    return counters;
}

std::optional<NamedCounters> parseVmstat(std::string_view text)
{
    NamedCounters counters;
    std::string_view line;
    std::string_view name;
    std::uint64_t value = 0;
    while (takeLine(text, line)) {
        if (vmstatLine(line, name, value))
            counters.insert_or_assign(std::string(name), value);
    }
    if (counters.empty())
        return std::nullopt;
    return counters;
}

bool scanMeminfo(std::string_view text, MemoryCounters& counters)
{
    return scanInto(text, kMeminfoFields, meminfoLine, counters);
}

bool scanVmstat(std::string_view text, MemoryCounters& counters)
{
    return scanInto(text, kVmstatFields, vmstatLine, counters);
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
