// The theme menu: the themes of the support folder, their detail text, and selecting one.
#include "prefs/theme_list.h"

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
    const QString name = theme.value(QStringLiteral("_Name")).toString();
    return {
        {QStringLiteral("_FileName"), fileName},
        {QStringLiteral("_Name"), name.isEmpty() ? QLatin1String(kUntitled) : name},
        {QStringLiteral("_Author"), theme.value(QStringLiteral("_Author")).toString()},
        {QStringLiteral("_Credit"), theme.value(QStringLiteral("_Credit")).toString()},
        {QStringLiteral("_ForDarkAppearance"), theme.value(QStringLiteral("_ForDarkAppearance")).toBool()},
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
    const char* appearance = entry.value(QStringLiteral("_ForDarkAppearance")).toBool()
                                 ? "● for Dark Appearance"
                                 : "○ for Light Appearance";
    return QStringLiteral("%1 by %2\n%3\n%4")
        .arg(entry.value(QStringLiteral("_Name")).toString(), entry.value(QStringLiteral("_Author")).toString(),
             entry.value(QStringLiteral("_Credit")).toString(), localized(appearance));
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
