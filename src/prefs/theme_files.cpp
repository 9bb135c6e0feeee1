// The support folder and its theme files: installing the reference themes, saving named copies.
#include "prefs/theme_files.h"

#include "toolkit/guarded_file.h"
#include "prefs/plist_io.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_keys.h"
#include "toolkit/localization.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace TvlClasses {

QString retApplicationSupportDir()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' +
           QLatin1String(kThemeFolderName);
}

void checkMyApplicationSupportDir()
{
    // mkpath, not mkdir: a fresh Linux account may not have ~/.local/share yet.
    QDir().mkpath(retApplicationSupportDir());
}

QString retThemeFilePath(const QString& fileName)
{
    return retApplicationSupportDir() + u'/' + fileName;
}

QString retBundleThemePath(const QString& themeName)
{
    return QStringLiteral(":/themes/") + themeName + u'.' + QLatin1String(kThemeExtension);
}

bool replaceThemeFile(const QString& from, const QString& to)
{
    if (!QFileInfo(from).isFile())
        return false;
    QFile::remove(to);
    if (!QFile::copy(from, to))
        return false;
    // Copies of embedded resources arrive read-only, and a later atomic save must replace them.
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    return true;
}

QVariantMap checkNowThemeFile(QString* problem)
{
    checkMyApplicationSupportDir();
    for (const char* name : {kLightThemeName, kDarkThemeName}) {
        const QString fileName = QLatin1String(name) + u'.' + QLatin1String(kThemeExtension);
        replaceThemeFile(retBundleThemePath(QLatin1String(name)), retThemeFilePath(fileName));
    }
    const QString nowPath = retThemeFilePath(QLatin1String(kNowThemeFileName));
    const QString lightPath = retBundleThemePath(QLatin1String(kLightThemeName));
    const GuardedFile::Target now = GuardedFile::resolve(nowPath);
    const auto tell = [problem](const QString& text) {
        if (problem)
            *problem = text;
    };
    if (now.kind == GuardedFile::Kind::Regular) {
        if (std::optional<QVariantMap> theme = PlistIo::readDictionary(now.path))
            return *theme;
        // The user's colours may be in there: keep the file, start again from the light theme.
        const std::optional<QString> aside = GuardedFile::setAside(now.path);
        if (!aside) {
            tell(Tarvel::localized("The colour theme %1 could not be read nor moved aside; "
                           "the light theme is used and the file is left as it is.")
                     .arg(nowPath));
            return PlistIo::readDictionary(lightPath).value_or(QVariantMap());
        }
        tell(Tarvel::localized("The colour theme %1 could not be read; it was moved to %2 and the "
                       "light theme is used.")
                 .arg(nowPath, *aside));
    } else if (now.kind == GuardedFile::Kind::Other) {
        tell(Tarvel::localized("The colour theme %1 is not a regular file; the light theme "
                       "is used and nothing is saved there.")
                 .arg(nowPath));
        return PlistIo::readDictionary(lightPath).value_or(QVariantMap());
    }
    replaceThemeFile(lightPath, now.path);
    return PlistIo::readDictionary(now.path).value_or(QVariantMap());
}

bool saveThemeFile(const QString& path, const QVariantMap& theme)
{
    QString name = QFileInfo(path).completeBaseName();
    if (name.isEmpty())
        name = QLatin1String(kUntitled);
    QVariantMap copy = theme;
    copy.insert(QLatin1String(PrefKey::_Name), name);
    const QStringList pictureKeys = themePictureKeys();
    for (const QString& key : pictureKeys)
        retDataFromImageFile(key, copy);
    return PlistIo::writeDictionaryAtomically(path, copy);
}

QVariantMap& retDataFromImageFile(const QString& key, QVariantMap& theme)
{
    QFile file(retThemeFilePath(key + QStringLiteral(".png")));
    if (file.size() > 0 && file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        if (!bytes.isEmpty())
            theme.insert(key, bytes);
    }
    return theme;
}

} // namespace TvlClasses
