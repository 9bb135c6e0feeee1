// The XDG search folders from the environment, with the defaults of the base directory rules.
#include "net/vnc_xdg_dirs.h"

#include <QDir>

namespace {

QString homeFolder(const char* variable, const QString& fallback)
{
    const QString value = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(value) ? value : fallback;
}

QStringList systemFolders(const char* variable, const QString& fallback)
{
    QStringList folders;
    for (const QString& folder : qEnvironmentVariable(variable, fallback).split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(folder))
            folders.append(folder);
    }
    return folders;
}

} // namespace

VncXdgDirs VncXdgDirs::fromEnvironment()
{
    const QString home = QDir::homePath();
    VncXdgDirs dirs;
    dirs.configDirs = QStringList{homeFolder("XDG_CONFIG_HOME", home + QStringLiteral("/.config"))} +
                      systemFolders("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg"));
    dirs.dataDirs = QStringList{homeFolder("XDG_DATA_HOME", home + QStringLiteral("/.local/share"))} +
                    systemFolders("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share"));
    for (const QString& desktop :
         qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts))
        dirs.desktops.append(desktop.toLower());
    return dirs;
}

VncXdgDirs VncXdgDirs::underRoot(const QString& root)
{
    VncXdgDirs dirs;
    dirs.configDirs = {root + QStringLiteral("/home/.config"), root + QStringLiteral("/etc/xdg")};
    dirs.dataDirs = {root + QStringLiteral("/home/.local/share"), root + QStringLiteral("/usr/local/share"),
                     root + QStringLiteral("/usr/share")};
    return dirs;
}
