// Parses "major minor name" followed by 11, 15 or 17 counters.
#include "collect/linux/diskstats_parser.h"

#include "collect/linux/text_fields.h"

#include <array>

namespace {
constexpr std::size_t kBaseCounters = 11;
constexpr std::size_t kMaxCounters = 17;

// One row; empty when it lacks its numbers, its name or the counters every kernel prints.
std::optional<DiskStatistics> parseRow(std::string_view line)
{
    std::string_view rest = line;
    const auto major = parseNumber<std::uint32_t>(takeField(rest));
    const auto minor = parseNumber<std::uint32_t>(takeField(rest));
    const std::string_view name = takeField(rest);
    if (!major || !minor || name.empty())
        return std::nullopt;
    std::array<std::uint64_t, kMaxCounters> value{};
    std::size_t count = 0;
    while (count < kMaxCounters) {
        const auto number = parseNumber<std::uint64_t>(trimSpace(takeField(rest)));
        if (!number)
            break;
        value[count++] = *number;
    }
    if (count < kBaseCounters)
        return std::nullopt;

    DiskStatistics row;
    row.major = *major;
    row.minor = *minor;
    row.name = std::string(name);
    row.readsCompleted = value[0];
    row.readsMerged = value[1];
    row.sectorsRead = value[2];
    row.readMilliseconds = value[3];
    row.writesCompleted = value[4];
    row.writesMerged = value[5];
    row.sectorsWritten = value[6];
    row.writeMilliseconds = value[7];
    row.ioInProgress = value[8];
    row.ioMilliseconds = value[9];
    row.weightedIoMilliseconds = value[10];
    if (count >= 15) {
        row.discardsCompleted = value[11];
        row.discardsMerged = value[12];
        row.sectorsDiscarded = value[13];
        row.discardMilliseconds = value[14];
    }
    if (count >= 17) {
        row.flushesCompleted = value[15];
        row.flushMilliseconds = value[16];
    }
    return row;
}
} // namespace

Parsed<std::vector<DiskStatistics>> parseDiskstats(std::string_view text)
{
    std::vector<DiskStatistics> rows;
    FirstSkippedLine skipped;
    std::string_view line;
    for (std::size_t number = 1; takeLine(text, line); ++number) {
        if (auto row = parseRow(line))
            rows.push_back(std::move(*row));
        else
            skipped.note(line, number);
    }
    if (rows.empty())
        return skipped.blame("no row of major, minor, name and eleven counters");
    return rows;
}
