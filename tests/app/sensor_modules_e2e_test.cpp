// The Temp and Fan modules over fixture trees, from start-up to the bar, the menus and the report.
#include "recording_status_bar.h"
#include "support/fixture_paths.h"
#include "test_app.h"

#include "app/front_ends/desktop_parts.h"
#include "app/snapshot_report.h"
#include "modules/module_registry.h"
#include "modules/sensor_menu_module.h"
#include "modules/temp/temp_menu_controller.h"
#include "prefs/pref_keys.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

std::filesystem::path tree(const char* name)
{
    return projectFixtures() / "linux" / name;
}

// Launched over the tree with the first cycle done.
void launchOver(TestApp& t, RecordingStatusBar& bar, const char* name)
{
    t.root = tree(name);
    t.queueTicks({{0, 0, 0, 0}});
    t.launchWithBar(bar);
    t.executor->finishCycle();
}

QJsonObject reportJson(TestApp& t)
{
    SnapshotReport report(t.app->collector());
    return QJsonDocument::fromJson(report.json(*t.app)).object();
}

SensorMenuModule& sensorModule(TestApp& t, ModuleId id)
{
    return *static_cast<SensorMenuModule*>(menuModule(*t.app, id));
}

} // namespace

TEST(SensorModules, AMacRunningLinuxNamesItsSmcKeysAndRemembersThoseThatDoNotAnswer)
{
    RecordingStatusBar bar; // outlives the items
    TestApp t;
    launchOver(t, bar, "sensors-mac");
    const QJsonObject root = reportJson(t);
    EXPECT_EQ(root.value(QStringLiteral("Temp")).toObject(), (QJsonObject{{QStringLiteral("PCPU 1 Proximity"), 52},
                                                                          {QStringLiteral("GPU Proximity"), 48},
                                                                          {QStringLiteral("Enclosure Base 1"), 30},
                                                                          {QStringLiteral("Applesmc TZ9X"), 41},
                                                                          {QStringLiteral("Coretemp Package Id 0"), 55},
                                                                          {QStringLiteral("Coretemp Core 0"), 53},
                                                                          {QLatin1String(kAverageTempKey), 46}}));
    // The fan standing still counts in the average.
    EXPECT_EQ(root.value(QStringLiteral("Fan")).toObject(), (QJsonObject{{QStringLiteral("Leftside"), 2000},
                                                                         {QStringLiteral("Rightside"), 0},
                                                                         {QLatin1String(kAverageFanKey), 1000}}));
    EXPECT_EQ(bar.texts.value(QStringLiteral("Temp")), QStringLiteral("46°C"));

    // Keys of the tables this SMC does not have are never read again, across launches.
    QStringList removed;
    for (const QVariant& key : t.store().arrayForKey(QLatin1String(PrefKey::RemovedTempKeys)))
        removed.append(key.toString());
    EXPECT_TRUE(removed.contains(QStringLiteral("TC0D")));
    EXPECT_FALSE(removed.contains(QStringLiteral("TC0P")));
    RecordingStatusBar secondBar;
    TestApp again;
    QFile::remove(again.settingsPath());
    QFile::copy(t.settingsPath(), again.settingsPath());
    launchOver(again, secondBar, "sensors-mac");
    EXPECT_EQ(again.app->sensorDatDict().tempData->size(), 6);
}

TEST(SensorModules, TheBarFollowsTheChosenSensorAndTheMenuListsTheDrives)
{
    RecordingStatusBar bar;
    TestApp t;
    t.writeSettings([](SettingsStore& store) {
        store.setString(QLatin1String(PrefKey::Temp_ShowTempOnMenu), QStringLiteral("Drivetemp Temp1"));
    });
    launchOver(t, bar, "sensors-drives");
    ASSERT_NE(menuModule(*t.app, ModuleId::Temp), nullptr);
    SensorMenuModule& temp = sensorModule(t, ModuleId::Temp);
    EXPECT_EQ(temp.barText(), QStringLiteral("35°C"));

    // Opening the menu lists the drives; without leave to ask them, only by name.
    temp.menuWillOpen();
    auto* panel = qobject_cast<Temp_MenuController*>(temp.panel());
    ASSERT_NE(panel, nullptr);
    QSignalSpy drives(panel, &Temp_MenuController::drivesUpdated);
    ASSERT_TRUE(drives.wait(5000));
    const QString rows = sensorPanelText(panel->rows(), {});
    EXPECT_TRUE(rows.contains(QStringLiteral("Drives\nSamsung SSD 970 EVO Plus 500GB  ---\n"))) << rows.toStdString();
    EXPECT_TRUE(rows.contains(QStringLiteral("Drivetemp Temp1  35°C"))) << rows.toStdString();
    temp.menuDidClose();
}

TEST(SensorModules, AMachineWithoutSensorsSaysSoAndKeepsRunning)
{
    RecordingStatusBar bar; // outlives the items
    TestApp t;
    launchOver(t, bar, "sensors-none");
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    EXPECT_FALSE(t.app->sensorDatDict().tempData.has_value());
    EXPECT_TRUE(bar.shown.contains(QStringLiteral("Temp")));
    EXPECT_EQ(bar.texts.value(QStringLiteral("Temp")), QStringLiteral("---"));
    EXPECT_EQ(bar.texts.value(QStringLiteral("Fan")), QStringLiteral("---"));

    const QJsonObject root = reportJson(t);
    EXPECT_FALSE(root.contains(QStringLiteral("Temp")));
    EXPECT_FALSE(root.contains(QStringLiteral("Fan")));
    SnapshotReport report(t.app->collector());
    const QString text = report.text(*t.app);
    EXPECT_TRUE(text.contains(QStringLiteral("Temp\n  ---\n  No temperature sensors were found.\n")))
        << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Fan\n  ---\n  No fans were found.\n"))) << text.toStdString();
}
