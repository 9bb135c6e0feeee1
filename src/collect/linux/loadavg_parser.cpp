// Parses "0.02 0.04 0.05 1/497 11947".
#include "collect/linux/loadavg_parser.h"

#include "collect/linux/text_fields.h"

#include <cmath>

Parsed<LoadAverageLine> parseLoadAverage(std::string_view text)
{
    const std::string_view whole = firstLine(text);
    LoadAverageLine line;
    const auto one = parseNumber<double>(takeField(text));
    const auto five = parseNumber<double>(takeField(text));
    const auto fifteen = parseNumber<double>(takeField(text));
    if (!one || !five || !fifteen)
        return rejectedLine("three load averages expected", whole, 1);
    // The kernel keeps them in 11-bit fixed point of an unsigned long: never negative, nan or
    // anywhere near 1e308. A tree with such figures is not read as a machine.
    const auto possible = [](double value) { return std::isfinite(value) && value >= 0 && value < 1e9; };
    if (!possible(*one) || !possible(*five) || !possible(*fifteen))
        return rejectedLine("load averages out of range", whole, 1);
    line.averages = {*one, *five, *fifteen};

    const std::string_view entities = trimSpace(takeField(text));
    const auto slash = entities.find('/');
    if (slash != std::string_view::npos) {
        line.runnable = parseNumber<std::uint64_t>(entities.substr(0, slash));
        line.schedulingEntities = parseNumber<std::uint64_t>(entities.substr(slash + 1));
    }
    return line;
}
