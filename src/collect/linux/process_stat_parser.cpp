// Parses one process's stat line, where fields are counted after the command name's closing
// ")", and the uptime line.
#include "collect/linux/process_stat_parser.h"

#include "collect/linux/text_fields.h"

namespace {
// Positions after the name, starting at the state field (the kernel's field 3).
constexpr int kUtime = 11;
constexpr int kStime = 12;
constexpr int kThreads = 17;
constexpr int kStartTime = 19;
constexpr int kRss = 21;
} // namespace

Parsed<ProcessRecord> parseProcessStat(std::string_view text)
{
    const auto reject = [line = firstLine(text)](std::string_view reason) { return rejectedLine(reason, line, 1); };
    const auto open = text.find('(');
    const auto close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return reject("no command name in parentheses");

    ProcessRecord record;
    const auto pid = parseNumber<std::int64_t>(trimSpace(text.substr(0, open)));
    if (!pid)
        return reject("process id is not a number");
    record.pid = *pid;
    record.command = std::string(text.substr(open + 1, close - open - 1));

    std::string_view rest = text.substr(close + 1);
    std::optional<std::uint64_t> utime, stime, startTime, rss;
    std::optional<std::int64_t> threads;
    for (int index = 0; index <= kRss; ++index) {
        const std::string_view field = trimSpace(takeField(rest));
        if (field.empty())
            return reject("line ends before the resident set size");
        switch (index) {
        case kUtime:
            utime = parseNumber<std::uint64_t>(field);
            break;
        case kStime:
            stime = parseNumber<std::uint64_t>(field);
            break;
        case kThreads:
            threads = parseNumber<std::int64_t>(field);
            break;
        case kStartTime:
            startTime = parseNumber<std::uint64_t>(field);
            break;
        case kRss: {
            // rss is signed in the kernel's accounting; a negative value reads as none resident.
            const auto pages = parseNumber<std::int64_t>(field);
            if (pages)
                rss = *pages < 0 ? 0 : static_cast<std::uint64_t>(*pages);
            break;
        }
        default:
            break;
        }
    }
    if (!utime || !stime || !threads || !startTime || !rss)
        return reject("times, thread count or resident set size not a number");
    record.cpuTicks = *utime + *stime;
    record.threads = *threads;
    record.startTime = *startTime;
    record.residentPages = *rss;
    return record;
}

Parsed<double> parseUptime(std::string_view text)
{
    std::string_view rest = text;
    const auto seconds = parseNumber<double>(trimSpace(takeField(rest)));
    if (!seconds || *seconds < 0)
        return rejectedLine("uptime is not a number of seconds", firstLine(text), 1);
    return *seconds;
}
