// Reads what /proc/cpuinfo says about the instruction set and a hypervisor underneath.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The machine name the kernel would report ("x86_64", "aarch64", "riscv64", ...), inferred
// from the fields each architecture prints; empty when the text gives no hint.
std::optional<std::string> parseCpuArchitecture(std::string_view text);

// Whether the first "flags" line carries "hypervisor", which processors set inside a guest.
bool hasHypervisorFlag(std::string_view text);
