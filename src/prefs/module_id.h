// The nine modules the settings know: their switches, order codes and keys are stored values.
#pragma once

#include <cstddef>

// Also the index of the module's history slot and of its working dictionary; the module
// registry lists the modules in this order.
enum class ModuleId { General, Cpu, Memory, Network, Disk, Volume, Temp, Fan, Vnc };

inline constexpr std::size_t kModuleCount = 9;

// The slots after the modules' own hold what a module collects beside its sample, only while
// someone wants it. Swap usage goes with the Memory sample when an alert rule or the long-term
// history asks for it: its history then runs beside the Memory one, and is emptied whenever a
// Memory sample comes without it, so that no reader takes a stale figure for a new one.
inline constexpr std::size_t kSwapHistorySlot = kModuleCount;

constexpr std::size_t moduleIndex(ModuleId id)
{
    return static_cast<std::size_t>(id);
}
