// Keeps the machine's model identifier and name in the settings, found once and then kept.
#pragma once

#include "collect/machine_details.h"

class SettingsStore;

// Stores "MacRawName" once, then "MacRealName" unless a name is already stored; facts that
// name nothing store nothing, so the next start tries again.
void collectMyMacDetail(SettingsStore& store, const MachineFacts& facts);
