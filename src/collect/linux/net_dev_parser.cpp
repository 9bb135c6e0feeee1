// Parses the interface rows "name: rx_bytes rx_packets ... tx_bytes tx_packets ...". Old kernels
// print large counters right after the colon with no blank, and a name may hold colons itself
// (and any UTF-8 letters), so the name ends at the last colon: counters never hold one.
#include "collect/linux/net_dev_parser.h"

#include "collect/linux/text_fields.h"

#include <array>

namespace {
// Receive: bytes packets errs drop fifo frame compressed multicast; then transmit.
constexpr std::size_t kReceiveBytes = 0;
constexpr std::size_t kReceivePackets = 1;
constexpr std::size_t kSendBytes = 8;
constexpr std::size_t kSendPackets = 9;
constexpr std::size_t kNeeded = 10;
} // namespace

Parsed<std::vector<InterfaceCounters>> parseNetDev(std::string_view text)
{
    std::vector<InterfaceCounters> rows;
    FirstSkippedLine skipped;
    std::string_view line;
    for (std::size_t lineNumber = 1; takeLine(text, line); ++lineNumber) {
        const auto colon = line.rfind(':');
        if (colon == std::string_view::npos)
            continue;
        const std::string_view name = trimSpace(line.substr(0, colon));
        // The header lines hold "|" and no colon-terminated name.
        if (name.empty() || name.find('|') != std::string_view::npos)
            continue;
        std::string_view rest = line.substr(colon + 1);
        std::array<std::uint64_t, kNeeded> value{};
        bool complete = true;
        for (std::size_t i = 0; i < kNeeded && complete; ++i) {
            const auto number = parseNumber<std::uint64_t>(trimSpace(takeField(rest)));
            complete = number.has_value();
            if (number)
                value[i] = *number;
        }
        if (!complete) {
            skipped.note(line, lineNumber);
            continue;
        }
        rows.push_back(
            {std::string(name), value[kReceiveBytes], value[kReceivePackets], value[kSendBytes], value[kSendPackets]});
    }
    if (rows.empty())
        return skipped.blame("no interface row with ten counters");
    return rows;
}
