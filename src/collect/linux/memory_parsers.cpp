// Memory counter parsers: name/value tables, the sample's figures and the swap list.
#include "collect/linux/memory_parsers.h"

#include "collect/linux/text_fields.h"

#include <algorithm>

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

// Where the line that starts with key begins; npos when no line does.
std::size_t lineStartingWith(std::string_view text, std::string_view key)
{
    for (std::size_t at = text.find(key); at != std::string_view::npos; at = text.find(key, at + 1)) {
        if (at == 0 || text[at - 1] == '\n')
            return at;
    }
    return std::string_view::npos;
}

// Looks for each wanted line rather than walking every line: vmstat has some two hundred, and
// this runs every tick. Line numbers are counted only for a line to blame.
template <std::size_t N>
Parsed<MemoryCounters> scanInto(std::string_view text, const NamedField (&fields)[N],
                                bool (*parseLine)(std::string_view, std::string_view&, std::uint64_t&),
                                MemoryCounters counters, std::string_view reason)
{
    bool any = false;
    std::size_t broken = std::string_view::npos;
    std::string_view name;
    std::uint64_t value = 0;
    for (const NamedField& field : fields) {
        const std::size_t at = lineStartingWith(text, field.key);
        if (at == std::string_view::npos)
            continue;
        if (!parseLine(firstLine(text.substr(at)), name, value)) {
            broken = std::min(broken, at);
            continue;
        }
        counters.*(field.field) = value;
        any = true;
    }
    if (any)
        return counters;
    if (broken == std::string_view::npos)
        return rejectedText(reason);
    const auto number = static_cast<std::size_t>(std::count(text.begin(), text.begin() + broken, '\n')) + 1;
    return rejectedLine(reason, firstLine(text.substr(broken)), number);
}

// Every line that parseLine takes, by name; the last of a repeated name wins.
Parsed<NamedCounters> parseTable(std::string_view text,
                                 bool (*parseLine)(std::string_view, std::string_view&, std::uint64_t&),
                                 std::string_view reason)
{
    NamedCounters counters;
    FirstSkippedLine skipped;
    std::string_view line;
    std::string_view name;
    std::uint64_t value = 0;
    for (std::size_t number = 1; takeLine(text, line); ++number) {
        if (parseLine(line, name, value))
            counters.insert_or_assign(std::string(name), value);
        else
            skipped.note(line, number);
    }
    if (counters.empty())
        return skipped.blame(reason);
    return counters;
}

} // namespace

Parsed<NamedCounters> parseMeminfo(std::string_view text)
{
    return parseTable(text, meminfoLine, "no \"Name: value\" line");
}

Parsed<NamedCounters> parseVmstat(std::string_view text)
{
    return parseTable(text, vmstatLine, "no \"name value\" line");
}

Parsed<MemoryCounters> scanMeminfo(std::string_view text, MemoryCounters counters)
{
    return scanInto(text, kMeminfoFields, meminfoLine, counters, "no memory figure");
}

Parsed<MemoryCounters> scanVmstat(std::string_view text, MemoryCounters counters)
{
    return scanInto(text, kVmstatFields, vmstatLine, counters, "no paging figure");
}

Parsed<std::vector<SwapArea>> parseSwaps(std::string_view text)
{
    std::string_view line;
    if (!takeLine(text, line))
        return rejectedText("empty swap list");
    if (!line.starts_with("Filename"))
        return rejectedLine("header \"Filename Type Size Used Priority\" expected", line, 1);
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
