// Building the status items from the settings: order, switches, odd order lists, menu cadence.
#include "app/front_ends/desktop_parts.h"
#include "recording_status_bar.h"
#include "test_app.h"

#include "modules/cpu/cpu_menu_module.h"
#include "modules/module_registry.h"
#include "prefs/pref_keys.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QWidgetAction>
#include <gtest/gtest.h>

namespace {

using namespace PrefKey;

void writeOrder(TestApp& t, const QVariantList& order, bool cpuOn = true)
{
    PlistSettingsStore store(t.settingsPath());
    for (const ModuleSchema* schema : allModuleSchemas())
        PrefFunctions::initializeModulePreference(*schema, store);
    store.setString(AppVersion, QStringLiteral("6.0.0"));
    store.setArray(TopItemSortArray, order);
    store.setBool(Cpu_Display_Graph, cpuOn);
    store.setBool(Cpu_Display_Text, cpuOn);
    store.synchronize();
}

} // namespace

TEST(ModuleRegistry, GeneralFirstThenTheBarOrderAndOddListsAreTolerated)
{
    RecordingStatusBar bar;
    TestApp t;
    writeOrder(t, {99, 1, 1, -3, 8});
    // Before its first sample the CPU picture shows the processors the source counts.
    t.queueTicks({{0, 0, 0, 0}, {0, 0, 0, 0}});
    t.launchWithBar(bar);
    // Unknown codes skipped; the duplicated CPU code allocates once.
    EXPECT_EQ(bar.shown, (QStringList{"CPU", "General"}));
    EXPECT_EQ(bar.created, 2);
    EXPECT_FALSE(bar.images.value("CPU").isNull());
    EXPECT_TRUE(bar.texts.value("CPU").startsWith(QStringLiteral("user ")));
    EXPECT_FALSE(bar.images.value("General").isNull());

    // A module missing from the order is neither created nor released.
    RecordingStatusBar bar2;
    TestApp t2;
    writeOrder(t2, {2, 3});
    t2.launchWithBar(bar2);
    EXPECT_EQ(bar2.shown, (QStringList{"Memory", "Network", "General"}));
    EXPECT_TRUE(t2.app->chkGeneBool(LaunchCpus));
}

TEST(ModuleRegistry, ReleaseClearsOnlyTheInMemorySwitchAndRelaunchRestoresIt)
{
    RecordingStatusBar bar;
    TestApp t;
    writeOrder(t, {1});
    t.launchWithBar(bar);
    t.app->moduleRelease(ModuleId::Cpu);
    EXPECT_EQ(bar.shown, (QStringList{"General"}));
    EXPECT_FALSE(t.app->chkGeneBool(LaunchCpus));
    EXPECT_TRUE(t.store().boolForKey(Cpu_Display_Graph));

    t.app->moduleLaunchCheck(true);
    EXPECT_EQ(bar.shown, (QStringList{"CPU", "General"}));
}

TEST(ModuleRegistry, AnOpenMenuSamplesEveryCycleAndTemplatesThePicture)
{
    RecordingStatusBar bar;
    TestApp t;
    writeOrder(t, {1});
    t.queueTicks({{0, 0, 0, 0}});
    t.launchWithBar(bar);
    t.executor->finishCycle();
    MenuModule* cpu = menuModule(*t.app, ModuleId::Cpu);
    ASSERT_NE(cpu, nullptr);

    cpu->menuWillOpen();
    EXPECT_TRUE(bar.templated.value("CPU"));
    // The open menu shows the averaged graph, 400 by 20 points, under the standard items.
    QLabel* graph = nullptr;
    for (QAction* action : cpu->menu()->actions()) {
        if (auto* widgetAction = qobject_cast<QWidgetAction*>(action); widgetAction && !graph)
            graph = qobject_cast<QLabel*>(widgetAction->defaultWidget());
    }
    ASSERT_NE(graph, nullptr);
    EXPECT_EQ(graph->pixmap().deviceIndependentSize(), QSizeF(400, 20));
    EXPECT_EQ(cpu->menu()->actions().front()->data().toInt(), 100);
    // Interval 2, yet with the menu open every cycle reads the processors.
    for (int cycle = 0; cycle < 3; ++cycle) {
        t.queueTicks({{std::uint64_t(10 * (cycle + 1)), 0, 0, 0}});
        t.app->loadSysInfoTimer();
        t.executor->finishCycle();
    }
    EXPECT_EQ(t.cpuHistory().size(), 3u);
    // The panel under the graph: shares at once, the slower lines from its background thread.
    auto* panel = static_cast<CPU_MenuModule*>(cpu)->controller();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->shareText(0), QStringLiteral("10%"));
    QSignalSpy details(panel, &CPU_MenuController::detailsUpdated);
    ASSERT_TRUE(details.wait(10000));
    EXPECT_EQ(panel->optionText(3), QStringLiteral("1min: 0.50, 5min: 0.25, 15min: 0.75"));

    cpu->menuDidClose();
    EXPECT_FALSE(bar.templated.value("CPU"));
}
