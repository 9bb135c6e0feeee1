// The nine modules the settings know: their switches, order codes and keys are stored values.
#pragma once

#include <cstddef>

// Also the index of the module's history slot and of its working dictionary; the module
// registry lists the modules in this order.
enum class ModuleId { General, Cpu, Memory, Network, Disk, Volume, Temp, Fan, Vnc };

inline constexpr std::size_t kModuleCount = 9;

constexpr std::size_t moduleIndex(ModuleId id)
{
    return static_cast<std::size_t>(id);
}
