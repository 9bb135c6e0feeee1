// Whether the user has set up dynamic DNS updates at all.
#pragma once

class SettingsStore;

namespace DdnsSettings {

// True when the stored list of dynamic DNS entries exists and is not empty.
bool hasDdnsList(const SettingsStore& store);

} // namespace DdnsSettings
