// The Alerts section of a module tab, driven offscreen: rules added and edited there are stored
// under their key, read back after a restart of the window, and taken up by the application.
#include "app/front_ends/desktop_parts.h"
#include "preferences/preference_tab.h"
#include "recording_status_bar.h"
#include "test_app.h"

#include "alerts/alert_rule_store.h"
#include "preferences/alert_editor.h"
#include "preferences/preferences_window.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// Longer than the 0.25 s hand-over of a notification.
constexpr int kSettleMs = 400;
constexpr int kCpuTab = 1;

// The section's widgets of one kind, row by row.
template <class Widget> QList<Widget*> shown(AlertEditor* editor, const char* name)
{
    return editor->findChildren<Widget*>(QLatin1String(name));
}

AlertEditor* cpuAlerts(TestApp& t)
{
    t.app->openPreferenceTab(kCpuTab);
    return preferencesWindow(*t.app)->tab(kCpuTab)->alertsSection();
}

TEST(AlertEditor, ARuleAddedAndEditedIsStoredReadBackAndWatched)
{
    RecordingStatusBar bar;
    TestApp t;
    t.launchWithBar(bar);
    t.executor->finishCycle();
    AlertEditor* editor = cpuAlerts(t);
    ASSERT_NE(editor, nullptr);
    // The offered CPU rule, switched off; the offered rules of other modules are not shown here.
    ASSERT_EQ(editor->shownRules().size(), 1);
    EXPECT_FALSE(editor->shownRules()[0].enabled);

    QTest::mouseClick(editor->findChild<QPushButton*>(QStringLiteral("AlertAdd")), Qt::LeftButton);
    ASSERT_EQ(shown<QDoubleSpinBox>(editor, "AlertThreshold").size(), 2);
    shown<QCheckBox>(editor, "AlertOn")[1]->setChecked(true);
    shown<QDoubleSpinBox>(editor, "AlertClearAt")[1]->setValue(70);
    shown<QDoubleSpinBox>(editor, "AlertThreshold")[1]->setValue(75);
    shown<QSpinBox>(editor, "AlertHold")[1]->setValue(120);
    // A threshold moved below the clearing point takes the clearing point with it.
    shown<QDoubleSpinBox>(editor, "AlertThreshold")[1]->setValue(65);
    EXPECT_DOUBLE_EQ(shown<QDoubleSpinBox>(editor, "AlertClearAt")[1]->value(), 65);
    shown<QDoubleSpinBox>(editor, "AlertThreshold")[1]->setValue(75);
    shown<QDoubleSpinBox>(editor, "AlertClearAt")[1]->setValue(70);
    QTest::qWait(kSettleMs);

    const AlertRule edited{AlertFigure::CpuBusy, true, 75, 70, 120, true};
    // Under its key in the settings file, after the other modules' offered rules.
    PlistSettingsStore file(t.settingsPath());
    const QList<AlertRule> offered = AlertRuleStore::offeredRules();
    QList<AlertRule> expected{offered[1], offered[2], offered[0], edited};
    EXPECT_EQ(AlertRuleStore::load(file), expected);
    EXPECT_EQ(t.app->alertMonitor().engine().rules(), expected) << "the application watches the edited rule";

    // A window built again reads the rows back from the store.
    preferencesWindow(*t.app)->close();
    QTest::qWait(10);
    editor = cpuAlerts(t);
    ASSERT_EQ(editor->shownRules().size(), 2);
    EXPECT_EQ(editor->shownRules()[1], edited);
    EXPECT_EQ(shown<QSpinBox>(editor, "AlertHold")[1]->value(), 120);

    // Removing the offered row leaves the edited one and every other module's rules.
    QTest::mouseClick(shown<QPushButton>(editor, "AlertRemove")[0], Qt::LeftButton);
    QTest::qWait(kSettleMs);
    expected.removeAt(2);
    EXPECT_EQ(AlertRuleStore::load(t.store()), expected);
    EXPECT_EQ(editor->shownRules(), QList<AlertRule>{edited});
}

} // namespace
