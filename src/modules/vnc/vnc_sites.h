// The hosts of the VNC settings that the menu lists.
#pragma once

#include "net/vnc_host.h"
#include "prefs/module_defaults.h"

#include <QList>

namespace TvlClasses {

// The stored hosts that have both a name and an address, in the user's order; with onMenuOnly
// only those marked for the menu.
QList<VncHost> retVncSite(const ModuleDefaults& dict, bool onMenuOnly);

} // namespace TvlClasses
