// The user's viewer folders from the environment or from a given home.
#include "net/vnc_user_dirs.h"

#include <QDir>

namespace {

QString xdgFolder(const char* variable, const QString& fallback)
{
    const QString value = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(value) ? value : fallback;
}

} // namespace

VncUserDirs VncUserDirs::fromEnvironment()
{
    VncUserDirs dirs = underHome(QDir::homePath());
    dirs.dataHome = xdgFolder("XDG_DATA_HOME", dirs.dataHome);
    dirs.stateHome = xdgFolder("XDG_STATE_HOME", dirs.stateHome);
    return dirs;
}

VncUserDirs VncUserDirs::underHome(const QString& home)
{
    return {home, home + QStringLiteral("/.local/share"), home + QStringLiteral("/.local/state")};
}

QStringList VncUserDirs::remminaFolders() const
{
    return {dataHome + QStringLiteral("/remmina"), home + QStringLiteral("/.remmina")};
}

QStringList VncUserDirs::tigerVncHistoryFiles() const
{
    return {home + QStringLiteral("/.vnc/tigervnc.history"), stateHome + QStringLiteral("/tigervnc/tigervnc.history")};
}
