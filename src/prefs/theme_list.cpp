// The theme menu: the themes of the support folder, their detail text, and selecting one.
#include "prefs/theme_list.h"

#include "prefs/pref_keys.h"
#include "prefs/plist_io.h"
#include "prefs/theme_files.h"
#include "prefs/theme_keys.h"
#include "toolkit/localization.h"

#include <QDir>
#include <QFileInfo>

namespace TvlClasses {
namespace {

QVariantMap entryOf(const QString& fileName)
{
    const QVariantMap theme = PlistIo::readDictionary(retThemeFilePath(fileName)).value_or(QVariantMap());
    const QString name = theme.value(QLatin1String(PrefKey::_Name)).toString();
    return {
        {QLatin1String(PrefKey::_FileName), fileName},
        {QLatin1String(PrefKey::_Name), name.isEmpty() ? QLatin1String(kUntitled) : name},
        {QLatin1String(PrefKey::_Author), theme.value(QLatin1String(PrefKey::_Author)).toString()},
        {QLatin1String(PrefKey::_Credit), theme.value(QLatin1String(PrefKey::_Credit)).toString()},
        {QLatin1String(PrefKey::_ForDarkAppearance), theme.value(QLatin1String(PrefKey::_ForDarkAppearance)).toBool()},
    };
}

bool isListedThemeName(const QString& fileName)
{
    const QString extension = u'.' + QLatin1String(kThemeExtension);
    return fileName.size() > extension.size() && !fileName.startsWith(u'.')
           && QFileInfo(fileName).suffix() == QLatin1String(kThemeExtension);
}

} // namespace

QVariantList retThemeList()
{
    const QString nowName = QLatin1String(kNowThemeFileName);
    QVariantList list;
    if (QFileInfo::exists(retThemeFilePath(nowName)))
        list.append(entryOf(nowName));
    // Sorted by name so the menu reads the same on every file system.
    const QStringList names =
        QDir(retApplicationSupportDir()).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        if (name != nowName && isListedThemeName(name))
            list.append(entryOf(name));
    }
    return list;
}

QString retThemeDetailText(const QVariantMap& entry)
{
    const char* appearance = entry.value(QLatin1String(PrefKey::_ForDarkAppearance)).toBool()
                                 ? Tarvel::textKey("● for Dark Appearance")
                                 : Tarvel::textKey("○ for Light Appearance");
    return QStringLiteral("%1 by %2\n%3\n%4")
        .arg(entry.value(QLatin1String(PrefKey::_Name)).toString(), entry.value(QLatin1String(PrefKey::_Author)).toString(),
             entry.value(QLatin1String(PrefKey::_Credit)).toString(), Tarvel::localized(appearance));
}

bool selectThemeFile(const QString& fileName)
{
    const QString nowName = QLatin1String(kNowThemeFileName);
    if (fileName == nowName)
        return true;
    // A bare name only: a path would reach outside the support folder.
    if (fileName.isEmpty() || fileName.contains(u'/'))
        return false;
    return replaceThemeFile(retThemeFilePath(fileName), retThemeFilePath(nowName));
}

} // namespace TvlClasses
