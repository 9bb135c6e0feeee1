// The hosts other programs remember: .vncloc connection files, Remmina's VNC profiles and
// TigerVNC's viewer history. Each returns the hosts it found, in the order it found them, and an
// empty list when there are none; unreadable files and entries are skipped.
#pragma once

#include "net/vnc_host.h"

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

struct VncUserDirs;

namespace GeneralFunctions {

// The .vncloc files of a folder, by file name: a property list whose "URL" entry is the address;
// the host is named after its file, extension and all.
QList<VncHost> importScreenShareFileFromAs(const QString& folder);

// One Remmina profile: a VNC connection named by "name" (else its server) with its server as a
// vnc: URL; none for other protocols and profiles without a server.
std::optional<VncHost> parseRemminaProfile(QStringView text);
// The .remmina profiles of a folder, by file name.
QList<VncHost> importRemminaProfiles(const QString& folder);

// TigerVNC's history: one server a line, newest first, each named as the user typed it.
QList<VncHost> parseTigerVncHistory(QStringView text);
QList<VncHost> importTigerVncHistory(const QString& path);

// Remmina's profiles, then TigerVNC's history, from the user's folders.
QList<VncHost> importScreenShareFiles(const VncUserDirs& dirs);

} // namespace GeneralFunctions
