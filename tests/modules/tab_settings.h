// A tab's settings as the application gives them: stored keys in the store, font in the theme.
#pragma once

#include "modules/module_prefs.h"
#include "modules/module_registry.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"

#include <QVariantMap>

// Writes the module's stored keys that the test settings hold into the store, so that a tab
// reading the store after a change finds them, and returns the theme their font comes from.
inline QVariantMap storeTabSettings(SettingsStore& store, ModuleId id, const ModuleDefaults& settings)
{
    for (const PrefField& field : moduleSchema(id).fields) {
        if (settings.contains(QLatin1String(field.key)))
            store.setObject(QLatin1String(field.key), settings.value(QLatin1String(field.key)));
    }
    return {{QLatin1String(PrefKey::_FontPostScriptName), settings.value(QLatin1String(PrefKey::_FontPostScriptName))},
            {QLatin1String(PrefKey::_FontSizeDiff), settings.value(QLatin1String(PrefKey::_FontSizeDiff))}};
}
