// Reading and writing the alert rules under their one settings key.
#include "alerts/alert_rule_store.h"

#include "alerts/alert_logging.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"

namespace AlertRuleStore {

QList<AlertRule> offeredRules()
{
    // What is worth watching on any machine: temperatures and fans are left out, as not every
    // machine reports them.
    return {AlertRule::offered(AlertFigure::CpuBusy, 90, 80, 60),
            AlertRule::offered(AlertFigure::VolumeFullest, 95, 90, 0),
            AlertRule::offered(AlertFigure::SwapUsed, 50, 40, 60)};
}

QList<AlertRule> load(SettingsStore& store)
{
    const QString key = QLatin1String(PrefKey::AlertRules);
    const QVariant stored = store.objectForKey(key);
    if (!stored.isValid())
        return offeredRules();
    if (stored.typeId() != QMetaType::QVariantList) {
        qCWarning(lcAlerts, "The stored alert rules are no list; the offered rules take their place.");
        save(store, offeredRules());
        store.synchronize();
        return offeredRules();
    }
    bool repaired = false;
    QList<AlertRule> rules = alertRulesFromList(stored.toList(), repaired);
    if (repaired) {
        qCWarning(lcAlerts, "Some stored alert rules were damaged; %lld of %lld are kept, set right.",
                  static_cast<long long>(rules.size()), static_cast<long long>(stored.toList().size()));
        save(store, rules);
        store.synchronize();
    }
    return rules;
}

void save(SettingsStore& store, const QList<AlertRule>& rules)
{
    store.setArray(QLatin1String(PrefKey::AlertRules), alertRulesToList(rules));
}

} // namespace AlertRuleStore
