// Reads the dynamic DNS configuration from the settings store.
#include "net/ddns_settings.h"

#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"

namespace DdnsSettings {

bool hasDdnsList(const SettingsStore& store)
{
    return !store.stringForKey(PrefKey::DdnsPropertyString).isEmpty();
}

} // namespace DdnsSettings
