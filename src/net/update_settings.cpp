// Reads the update check's addresses from the settings store.
#include "net/update_settings.h"

#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"

namespace {

QString storedOr(const SettingsStore& store, const char* key, const char* fallback)
{
    const QVariant stored = store.objectForKey(QLatin1String(key));
    return stored.isValid() ? stored.toString().trimmed() : QString::fromLatin1(fallback);
}

} // namespace

namespace UpdateSettings {

QString versionFileUrl(const SettingsStore& store)
{
    return storedOr(store, PrefKey::UpdateVersionFileURL, kDefaultVersionFileUrl);
}

QString downloadPageUrl(const SettingsStore& store)
{
    return storedOr(store, PrefKey::DownloadPageURL, kDefaultDownloadPageUrl);
}

} // namespace UpdateSettings
