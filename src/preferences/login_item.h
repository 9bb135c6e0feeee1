// Starting at login: an entry in the desktop's autostart folder.
#pragma once

#include <QString>

namespace LoginItem {

// The autostart entry's path (in the user's configuration folder, "autostart").
QString entryPath();
bool isEnabled();
// Writes or removes the entry; false when that failed. The entry starts program.
bool setEnabled(bool on, const QString& program);

} // namespace LoginItem
