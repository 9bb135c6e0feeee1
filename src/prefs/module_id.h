// The nine modules and the fixed key names each one is known by.
#pragma once

#include <array>
#include <optional>

enum class ModuleId { General, Cpu, Memory, Network, Disk, Volume, Temp, Fan, Vnc };

// Table order: also the order in which all modules are released and their settings listed.
inline constexpr std::array<ModuleId, 9> kAllModules = {
    ModuleId::General, ModuleId::Cpu,    ModuleId::Memory, ModuleId::Network, ModuleId::Disk,
    ModuleId::Volume,  ModuleId::Temp,   ModuleId::Fan,    ModuleId::Vnc};

// The seven modules the sampling cycle collects, in the cycle's order.
inline constexpr std::array<ModuleId, 7> kSampledModules = {
    ModuleId::Cpu, ModuleId::Memory, ModuleId::Network, ModuleId::Disk,
    ModuleId::Volume, ModuleId::Temp, ModuleId::Fan};

struct ModuleKeys {
    ModuleId id;
    const char* historyKey;   // key of the module's history, and of its settings in the full set
    const char* switchKey;    // in the General dictionary; the General module has its own switch
    int sortCode;             // its number in the menu-bar order setting; 0 for General
    const char* notification; // name of its preference-change notification
    const char* prefName;     // display name of its settings tab ("" for General: the app name)
    // Sampling-cycle keys; null for General and VNC, which have no cadence of their own.
    const char* intervalKey;
    const char* counterKey;
    const char* loadFlagKey;
};

const ModuleKeys& moduleKeys(ModuleId id);

// The module that a menu-bar order code stands for; none for codes outside 1 to 8.
std::optional<ModuleId> moduleForSortCode(long long code);
