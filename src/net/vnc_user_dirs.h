// Where the user's VNC viewers keep their hosts: below the home folder and its XDG folders.
#pragma once

#include <QString>
#include <QStringList>

struct VncUserDirs {
    QString home;
    QString dataHome;  // XDG_DATA_HOME, ~/.local/share by default
    QString stateHome; // XDG_STATE_HOME, ~/.local/state by default

    // The running user's folders; an XDG variable that is not an absolute path is ignored, as
    // the XDG rules ask.
    static VncUserDirs fromEnvironment();
    // The default folders below the given home, for a user whose XDG variables are unset.
    static VncUserDirs underHome(const QString& home);

    // Remmina's profile folders: the XDG one, then the folder of its early versions.
    QStringList remminaFolders() const;
    // TigerVNC's history files in the order its viewer looks: ~/.vnc while that folder exists
    // (1.14 and later still prefer it), else the XDG state folder.
    QStringList tigerVncHistoryFiles() const;
};
