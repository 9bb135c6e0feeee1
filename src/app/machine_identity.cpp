// The stored machine names: written on the first start that can tell them, then left alone.
#include "app/machine_identity.h"

#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"

void collectMyMacDetail(SettingsStore& store, const MachineFacts& facts)
{
    if (!store.objectForKey(QLatin1String(PrefKey::MacRawName)).isValid()) {
        if (!facts.rawName)
            return;
        store.setString(QLatin1String(PrefKey::MacRawName), *facts.rawName);
        store.synchronize();
    }
    const QString raw = store.stringForKey(QLatin1String(PrefKey::MacRawName));
    // VMware's firmware already names the product well; there is nothing better to find.
    // The picture stays as it is: this platform draws the theme's machine picture.
    if (raw.contains(QLatin1String("VMware"))) {
        store.setString(QLatin1String(PrefKey::MacRealName), raw);
        store.synchronize();
        return;
    }
    // Once a name is stored it stands, as a looked-up name would.
    if (store.objectForKey(QLatin1String(PrefKey::MacRealName)).isValid())
        return;
    const std::optional<QString> real = facts.looksVirtual ? QStringLiteral("(Probably VM)") : facts.readableName;
    if (!real)
        return;
    store.setString(QLatin1String(PrefKey::MacRealName), *real);
    store.synchronize();
}
