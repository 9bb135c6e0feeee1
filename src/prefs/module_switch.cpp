// Module switches over the display-element keys, with the user's choice kept while switched off.
#include "prefs/module_switch.h"

#include "prefs/pref_keys.h"
#include "prefs/pref_schema.h"
#include "prefs/settings_store.h"

#include <algorithm>

namespace PrefFunctions {

using namespace PrefKey;

const std::vector<const char*>& moduleDisplayKeys(ModuleId id)
{
    static const std::vector<const char*> general{DisplayMyMenuIcon};
    static const std::vector<const char*> cpu{Cpu_Display_Graph, Cpu_Display_LevelBar, Cpu_Display_CircleMeter,
                                              Cpu_Display_Text};
    static const std::vector<const char*> memory{Memory_Display_Graph, Memory_Display_LevelBar,
                                                 Memory_Display_CircleMeter, Memory_Display_Text,
                                                 Memory_Display_DetailText};
    // The up/down label alone is no picture, so it does not switch the module on.
    static const std::vector<const char*> network{Network_Display_UdCircle, Network_Display_Graph,
                                                  Network_Display_Text};
    static const std::vector<const char*> disk{Disk_Display_Indicator, Disk_Display_Graph, Disk_Display_Text};
    static const std::vector<const char*> volume{Vlms_Display_BarChart, Vlms_Display_CycleChart, Vlms_Display_Graph,
                                                 Vlms_Display_Text, Vlms_Display_Percent};
    static const std::vector<const char*> temp{Temp_Display_Text, Temp_Display_Graph};
    static const std::vector<const char*> fan{Fan_Display_Text, Fan_Display_Graph};
    static const std::vector<const char*> vnc{Vnc_ShowMenu};
    switch (id) {
    case ModuleId::General:
        return general;
    case ModuleId::Cpu:
        return cpu;
    case ModuleId::Memory:
        return memory;
    case ModuleId::Network:
        return network;
    case ModuleId::Disk:
        return disk;
    case ModuleId::Volume:
        return volume;
    case ModuleId::Temp:
        return temp;
    case ModuleId::Fan:
        return fan;
    case ModuleId::Vnc:
        break;
    }
    return vnc;
}

bool isModuleSwitchedOn(const SettingsStore& store, ModuleId id)
{
    const auto& keys = moduleDisplayKeys(id);
    return std::any_of(keys.begin(), keys.end(), [&](const char* key) { return store.boolForKey(key); });
}

namespace {

QStringList firstRunDisplayKeys(ModuleId id)
{
    QStringList on;
    const auto& keys = moduleDisplayKeys(id);
    for (const PrefField& field : moduleSchema(id).fields) {
        if (field.factory.toBool() && std::find(keys.begin(), keys.end(), QString::fromLatin1(field.key)) != keys.end())
            on << QString::fromLatin1(field.key);
    }
    // A module whose elements are all off at first run still shows its first element.
    if (on.isEmpty() && !keys.empty())
        on << QString::fromLatin1(keys.front());
    return on;
}

} // namespace

void setModuleSwitch(SettingsStore& store, ModuleId id, bool on)
{
    if (on == isModuleSwitchedOn(store, id))
        return;
    const QString moduleKey = QString::fromLatin1(moduleKeys(id).historyKey);
    QVariantMap memory = store.objectForKey(ModuleSwitchMemory).toMap();
    const auto& keys = moduleDisplayKeys(id);
    if (!on) {
        QStringList wasOn;
        for (const char* key : keys) {
            if (store.boolForKey(key))
                wasOn << QString::fromLatin1(key);
            store.setBool(key, false);
        }
        memory.insert(moduleKey, wasOn);
        store.setObject(ModuleSwitchMemory, memory);
        return;
    }
    QStringList restore = memory.value(moduleKey).toStringList();
    restore.removeIf([&](const QString& key) { return std::find(keys.begin(), keys.end(), key) == keys.end(); });
    if (restore.isEmpty())
        restore = firstRunDisplayKeys(id);
    for (const QString& key : restore)
        store.setBool(key, true);
    memory.remove(moduleKey);
    store.setObject(ModuleSwitchMemory, memory);
}

} // namespace PrefFunctions
