// Parses /proc/stat. Only the leading cpu lines are scanned for ticks: the interrupt line that
// follows them can be tens of kilobytes and is not needed every tick.
#include "collect/linux/stat_parser.h"

#include "collect/linux/text_fields.h"

#include <array>

namespace {
// Kernel column order of a cpu line.
enum StatColumn : std::size_t { User, Nice, System, Idle, IoWait, Irq, SoftIrq, Steal, kColumns };

bool isProcessorLabel(std::string_view label)
{
    if (label.size() <= 3 || !label.starts_with("cpu"))
        return false;
    for (const char c : label.substr(3))
        if (c < '0' || c > '9')
            return false;
    return true;
}
} // namespace

Parsed<std::vector<ProcessorTicks>> parseProcessorTicks(std::string_view text)
{
    std::vector<ProcessorTicks> processors;
    FirstSkippedLine skipped;
    std::string_view line;
    for (std::size_t number = 1; takeLine(text, line); ++number) {
        if (!line.starts_with("cpu")) {
            if (!processors.empty())
                break;
            skipped.note(line, number);
            continue;
        }
        std::string_view rest = line;
        if (!isProcessorLabel(takeField(rest))) {
            skipped.note(line, number);
            continue;
        }
        std::array<std::uint64_t, kColumns> column{};
        for (std::size_t i = 0; i < kColumns; ++i) {
            const auto value = parseNumber<std::uint64_t>(takeField(rest));
            if (!value)
                break;
            column[i] = *value;
        }
        ProcessorTicks ticks{};
        ticks[CpuUser] = column[User];
        ticks[CpuSystem] = column[System] + column[Irq] + column[SoftIrq] + column[Steal];
        ticks[CpuNice] = column[Nice];
        ticks[CpuIdle] = column[Idle] + column[IoWait];
        processors.push_back(ticks);
    }
    if (processors.empty())
        return skipped.blame("no per-processor \"cpuN\" line");
    return processors;
}

Parsed<std::int64_t> parseBootTime(std::string_view text)
{
    std::string_view line;
    for (std::size_t number = 1; takeLine(text, line); ++number) {
        if (!line.starts_with("btime"))
            continue;
        std::string_view rest = line;
        if (takeField(rest) != "btime")
            continue;
        if (const auto seconds = parseNumber<std::int64_t>(takeField(rest)))
            return *seconds;
        return rejectedLine("boot time is not a whole number", line, number);
    }
    return rejectedText("no \"btime\" line");
}
