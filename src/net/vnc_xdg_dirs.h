// The folders the freedesktop rules search for default applications and desktop entries.
#pragma once

#include <QString>
#include <QStringList>

struct VncXdgDirs {
    QStringList configDirs; // XDG_CONFIG_HOME, then XDG_CONFIG_DIRS
    QStringList dataDirs;   // XDG_DATA_HOME, then XDG_DATA_DIRS
    QStringList desktops;   // XDG_CURRENT_DESKTOP's names, lower-cased, for "<desktop>-mimeapps.list"

    static VncXdgDirs fromEnvironment();
    // The default folders of a system laid out below root, with its user's home at root/home.
    static VncXdgDirs underRoot(const QString& root);
};
