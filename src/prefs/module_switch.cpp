// Module switches over the display-element keys, with the user's choice kept while switched off.
#include "prefs/module_switch.h"

#include "prefs/pref_keys.h"
#include "prefs/pref_schema.h"
#include "prefs/settings_store.h"

#include <algorithm>

namespace PrefFunctions {

using namespace PrefKey;

bool isModuleSwitchedOn(const SettingsStore& store, const ModuleSchema& schema)
{
    const auto& keys = schema.displayKeys;
    return std::any_of(keys.begin(), keys.end(), [&](const char* key) { return store.boolForKey(key); });
}

namespace {

QStringList firstRunDisplayKeys(const ModuleSchema& schema)
{
    QStringList on;
    const auto& keys = schema.displayKeys;
    for (const PrefField& field : schema.fields) {
        if (field.factory.toBool() && std::find(keys.begin(), keys.end(), QString::fromLatin1(field.key)) != keys.end())
            on << QString::fromLatin1(field.key);
    }
    // A module whose elements are all off at first run still shows its first element.
    if (on.isEmpty() && !keys.empty())
        on << QString::fromLatin1(keys.front());
    return on;
}

} // namespace

void setModuleSwitch(SettingsStore& store, const ModuleSchema& schema, bool on)
{
    if (on == isModuleSwitchedOn(store, schema))
        return;
    const QString moduleKey = QString::fromLatin1(schema.moduleKey);
    QVariantMap memory = store.objectForKey(ModuleSwitchMemory).toMap();
    const auto& keys = schema.displayKeys;
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
        restore = firstRunDisplayKeys(schema);
    for (const QString& key : restore)
        store.setBool(key, true);
    memory.remove(moduleKey);
    store.setObject(ModuleSwitchMemory, memory);
}

} // namespace PrefFunctions
