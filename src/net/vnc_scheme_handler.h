// Which installed application opens vnc: addresses, found the way xdg-open finds it: the
// mimeapps.list defaults and associations, then the desktop entries that claim the type.
#pragma once

#include "net/vnc_xdg_dirs.h"

#include <QString>

#include <optional>

struct VncViewerApp {
    QString desktopId; // "org.remmina.Remmina.desktop"
    QString path;      // the desktop entry's file
    QString name;
    QString exec; // its Exec line, field codes and all
};

namespace VncSchemeHandler {

inline constexpr char kVncMimeType[] = "x-scheme-handler/vnc";

// The application for that type; none when nothing installed and shown claims it.
std::optional<VncViewerApp> find(const VncXdgDirs& dirs, const QString& mimeType = QLatin1String(kVncMimeType));

} // namespace VncSchemeHandler
