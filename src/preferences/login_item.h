// Starting at login: an entry in the desktop's autostart folder.
#pragma once

#include <QString>
#include <QStringList>

namespace LoginItem {

// Where the Debian package puts the program.
inline constexpr char packageFolder[] = "/usr/bin";

// The autostart entry's path (in the user's configuration folder, "autostart").
QString entryPath();
bool isEnabled();

// The Exec line that starts program at login. The installed program (in installedFolder, or the
// very file that searchFolders find under its name) is named plainly, so the entry keeps working
// across upgrades; a build of one's own is named by its absolute path, quoted.
QString execLine(const QString& program, const QStringList& searchFolders,
                 const QString& installedFolder = QLatin1String(packageFolder));

// Writes or removes the entry; false when that failed. The entry starts program, found as
// execLine says along the PATH.
bool setEnabled(bool on, const QString& program);

} // namespace LoginItem
