// The module table: history keys, switches, order codes, notifications and cycle keys.
#include "prefs/module_table.h"

#include "prefs/pref_keys.h"

namespace {

using namespace PrefKey;

// Order codes are historic (Volume 7, Temp 5, Fan 6) and stored in users' settings: keep them.
constexpr std::array<ModuleKeys, 9> kTable = {{
    {ModuleId::General, "General", DisplayMyMenuIcon, 0, "GeneralModuleNotif", "", nullptr, nullptr, nullptr},
    {ModuleId::Cpu, "CPU", LaunchCpus, 1, "CpuModuleNotif", "CPU", Cpu_UpdateInterval,
     CpuInnerLoadCounterInt, CpuInnerLoadData},
    {ModuleId::Memory, "Memory", LaunchMemo, 2, "MemoryModuleNotif", "Memory", Memory_UpdateInterval,
     MemoryInnerLoadCounterInt, MemoryInnerLoadData},
    {ModuleId::Network, "Network", LaunchNetw, 3, "NetworkModuleNotif", "Network", Network_UpdateInterval,
     NetworkInnerLoadCounterInt, NetworkInnerLoadData},
    {ModuleId::Disk, "Disk", LaunchDisk, 4, "DiskModuleNotif", "Disk", Disk_UpdateInterval,
     DiskInnerLoadCounterInt, DiskInnerLoadData},
    {ModuleId::Volume, "Volume", LaunchVolume, 7, "VlmsModuleNotif", "Volume", Vlms_UpdateInterval,
     VlmsInnerLoadCounterInt, VlmsInnerLoadData},
    {ModuleId::Temp, "Temp", LaunchTemp, 5, "TempModuleNotif", "Temp", Temp_UpdateInterval,
     TempInnerLoadCounterInt, TempInnerLoadData},
    {ModuleId::Fan, "Fan", LaunchFans, 6, "FanModuleNotif", "Fan", Fan_UpdateInterval,
     FanInnerLoadCounterInt, FanInnerLoadData},
    {ModuleId::Vnc, "VNC", LaunchVNC, 8, "VNCModuleNotif", "VNC", nullptr, nullptr, nullptr},
}};

} // namespace

const ModuleKeys& moduleKeys(ModuleId id)
{
    return kTable[static_cast<std::size_t>(id)];
}

std::optional<ModuleId> moduleForSortCode(long long code)
{
    for (const ModuleKeys& keys : kTable) {
        if (keys.sortCode != 0 && keys.sortCode == code)
            return keys.id;
    }
    return std::nullopt;
}
