// Each architecture prints its own fields in /proc/cpuinfo; the first telling one decides.
#include "collect/linux/cpu_architecture_parser.h"

#include "collect/linux/text_fields.h"

namespace {
// The value of the first "key : value" line with this key; empty when absent.
std::optional<std::string_view> firstValue(std::string_view text, std::string_view key)
{
    std::string_view line;
    while (takeLine(text, line)) {
        const auto colon = line.find(':');
        if (colon != std::string_view::npos && trimSpace(line.substr(0, colon)) == key)
            return trimSpace(line.substr(colon + 1));
    }
    return std::nullopt;
}

bool hasField(std::string_view fields, std::string_view wanted)
{
    for (auto field = takeField(fields); !field.empty(); field = takeField(fields)) {
        if (field == wanted)
            return true;
    }
    return false;
}
} // namespace

std::optional<std::string> parseCpuArchitecture(std::string_view text)
{
    if (const auto arm = firstValue(text, "CPU architecture")) {
        if (*arm == "8" || *arm == "AArch64")
            return "aarch64";
        return "armv" + std::string(*arm) + "l";
    }
    if (const auto isa = firstValue(text, "isa")) {
        if (isa->starts_with("rv64"))
            return "riscv64";
        if (isa->starts_with("rv32"))
            return "riscv32";
    }
    // x86 prints "flags"; "lm" (long mode) is what separates 64-bit processors.
    if (const auto flags = firstValue(text, "flags"))
        return hasField(*flags, "lm") ? "x86_64" : "i686";
    return std::nullopt;
}

bool hasHypervisorFlag(std::string_view text)
{
    const auto flags = firstValue(text, "flags");
    return flags && hasField(*flags, "hypervisor");
}
