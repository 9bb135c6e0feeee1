// The stored alert rules: offered on a first run, and a damaged list repaired, never fatal.
#include "support/memory_settings_store.h"

#include "alerts/alert_rule_store.h"
#include "prefs/pref_keys.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace AlertRuleKey;

QVariantMap entry(std::initializer_list<std::pair<const char*, QVariant>> values)
{
    QVariantMap map;
    for (const auto& [key, value] : values)
        map.insert(QLatin1String(key), value);
    return map;
}

TEST(AlertRuleStore, WithoutAStoredListThreeRulesAreOfferedAllSwitchedOff)
{
    MemorySettingsStore store;
    const QList<AlertRule> rules = AlertRuleStore::load(store);
    ASSERT_EQ(rules.size(), 3);
    for (const AlertRule& rule : rules) {
        EXPECT_FALSE(rule.enabled);
        EXPECT_TRUE(rule.cleared(rule.clearAt)) << alertFigureInfo(rule.figure).id;
    }
    // Only figures every machine has: a busy processor, a full volume, swap filling up.
    EXPECT_EQ(rules[2], (AlertRule{AlertFigure::SwapUsed, true, 50, 40, 60, false}));
    // A list the user emptied stays empty.
    AlertRuleStore::save(store, {});
    EXPECT_TRUE(AlertRuleStore::load(store).isEmpty());
}

TEST(AlertRuleStore, DamagedEntriesAreDroppedOrSetRightAndTheListWrittenBackOnce)
{
    MemorySettingsStore store;
    const QString key = QLatin1String(PrefKey::AlertRules);
    const QVariantMap good =
        entry({{Figure, "CpuBusy"}, {Above, true}, {Threshold, 90}, {ClearAt, 80}, {HoldSeconds, 60}, {Enabled, true}});
    store.values.insert(
        key, QVariantList{
                 QStringLiteral("not a rule"),
                 entry({{Figure, "GpuBusy"}, {Threshold, 50}}),
                 entry({{Figure, "CpuBusy"}, {Threshold, QStringLiteral("lots")}}),
                 entry({{Figure, "CpuBusy"}, {Threshold, std::numeric_limits<double>::quiet_NaN()}}),
                 good,
                 // A clearing point past the threshold, a negative hold and no switch at all.
                 entry({{Figure, "VolumeFullest"}, {Above, true}, {Threshold, 95}, {ClearAt, 99}, {HoldSeconds, -5}}),
                 entry({{Figure, "NetworkDown"},
                        {Above, false},
                        {Threshold, QStringLiteral("1")},
                        {ClearAt, 2},
                        {HoldSeconds, 1e12},
                        {Enabled, true}}),
             });

    const QList<AlertRule> rules = AlertRuleStore::load(store);
    ASSERT_EQ(rules.size(), 3);
    EXPECT_EQ(rules[0], (AlertRule{AlertFigure::CpuBusy, true, 90, 80, 60, true}));
    EXPECT_EQ(rules[1], (AlertRule{AlertFigure::VolumeFullest, true, 95, 95, 0, false}));
    EXPECT_EQ(rules[2], (AlertRule{AlertFigure::NetworkDown, false, 1, 2, kAlertMaxHoldSeconds, true}));
    EXPECT_EQ(store.values.value(key).toList(), alertRulesToList(rules));
    EXPECT_EQ(store.values.value(key).toList().at(0).toMap(), good);

    // Read again, it is as written: nothing more to repair, no further save.
    const int saves = store.saves;
    EXPECT_EQ(AlertRuleStore::load(store), rules);
    EXPECT_EQ(store.saves, saves);

    // Something else than a list altogether gives way to the offered rules.
    store.values.insert(key, QStringLiteral("rules"));
    EXPECT_EQ(AlertRuleStore::load(store), AlertRuleStore::offeredRules());
    EXPECT_EQ(store.values.value(key).toList(), alertRulesToList(AlertRuleStore::offeredRules()));
}

} // namespace
