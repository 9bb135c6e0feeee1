// The General item's words, shared by its picture and the text view.
#include "modules/general/general_item_text.h"

#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QDir>

QString generalItemText(const ModuleDefaults& general, const SettingsStore& store)
{
    QString text = general.stringValue(PrefKey::PrefName);
    // Written at every launch before any item exists, so it is this run's version.
    const QString version = store.stringForKey(PrefKey::AppVersion);
    if (!version.isEmpty())
        text += u' ' + version;
    QString where = store.location();
    if (where.isEmpty())
        return text;
    const QString home = QDir::homePath() + u'/';
    if (where.startsWith(home))
        where = QStringLiteral("~/") + where.mid(home.size());
    return Tarvel::localized("%1, settings in %2").arg(text, where);
}
