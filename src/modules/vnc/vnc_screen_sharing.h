// Opening screen-sharing hosts and the VNC viewer through the desktop's registered handler.
#pragma once

#include "net/vnc_xdg_dirs.h"

#include <QString>

class Notifier;

namespace TvlClasses {

// Hands the address to the desktop's opener (xdg-open, or a handler set with
// QDesktopServices::setUrlHandler), which starts the viewer registered for its scheme. Where no
// viewer is registered the user is told through the notifier (when there is one) and nothing
// is started. False when nothing was opened.
bool goScreenSharingApp(const QString& url, Notifier* notifier, const VncXdgDirs& dirs = VncXdgDirs::fromEnvironment());

// Starts the registered VNC viewer with no host, as the menu's tool item does; the same
// notification where there is none.
bool openScreenSharing(Notifier* notifier, const VncXdgDirs& dirs = VncXdgDirs::fromEnvironment());

} // namespace TvlClasses
