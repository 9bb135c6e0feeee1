// The public address-echo services the global address is asked of.
#pragma once

#include <QStringList>

class SettingsStore;

namespace GlobalIpServices {

// The built-in table, in its stored order (a lookup shuffles it).
QStringList builtInServiceList();

// The user's list when the settings hold a non-empty one, else the built-in table.
QStringList serviceList(const SettingsStore& store);

} // namespace GlobalIpServices
