// Finds the first "model name : ..." entry of /proc/cpuinfo.
#include "collect/linux/cpuinfo_parser.h"

#include "collect/linux/text_fields.h"

std::optional<std::string> parseFirstModelName(std::string_view text)
{
    std::string_view line;
    while (takeLine(text, line)) {
        const auto colon = line.find(':');
        if (colon == std::string_view::npos || trimSpace(line.substr(0, colon)) != "model name")
            continue;
        const std::string_view value = trimSpace(line.substr(colon + 1));
        if (value.empty())
            return std::nullopt;
        return std::string(value);
    }
    return std::nullopt;
}
