// The alert rules in the settings store: read with repairs, written whole.
#pragma once

#include "alerts/alert_rule.h"

#include <QList>

class SettingsStore;

namespace AlertRuleStore {

// The rules a first run offers, each switched off: the user switches on what fits the machine.
QList<AlertRule> offeredRules();

// The stored rules. Without a stored list (a first run, a settings file from before alerts)
// the offered rules; entries that cannot be rules are dropped and usable ones set right, and
// the store then holds the list as read, so that the preferences show what is watched.
QList<AlertRule> load(SettingsStore& store);
void save(SettingsStore& store, const QList<AlertRule>& rules);

} // namespace AlertRuleStore
