// The VNC module in the application: its item appears with its switch and keeps its picture,
// its menu lists the stored hosts, and the snapshot reports the hosts the menu shows.
#include "recording_status_bar.h"
#include "test_app.h"

#include "app/snapshot_report.h"
#include "modules/module_registry.h"
#include "prefs/pref_keys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <gtest/gtest.h>

namespace {

using namespace PrefKey;

void writeVncSettings(TestApp& t, const QVariantList& hosts)
{
    PlistSettingsStore store(t.settingsPath());
    for (const ModuleSchema* schema : allModuleSchemas())
        PrefFunctions::initializeModulePreference(*schema, store);
    store.setString(AppVersion, QStringLiteral("6.0.0"));
    store.setArray(TopItemSortArray, {8});
    store.setBool(Vnc_ShowMenu, true);
    store.setArray(Vnc_ClientSortArray, hosts);
    store.synchronize();
}

const QVariantMap kOffice{{"name", "Office Mac"}, {"url", "vnc://office.local:5901"}, {"menu", true}};
const QVariantMap kImported{{"name", "Lab"}, {"url", "vnc://lab.local"}};

} // namespace

TEST(VncModule, ItemShowsItsPictureAndItsMenuTheHosts)
{
    RecordingStatusBar bar;
    TestApp t;
    writeVncSettings(t, {kOffice, kImported});
    t.launchWithBar(bar);
    ASSERT_TRUE(bar.shown.contains(QStringLiteral("VNC")));
    // VNC keeps no history: its picture is there before any cycle and stays after one.
    EXPECT_FALSE(bar.images.value("VNC").isNull());
    t.executor->finishCycle();
    EXPECT_FALSE(bar.images.value("VNC").isNull());

    QMenu* menu = bar.menus.value("VNC");
    ASSERT_NE(menu, nullptr);
    QStringList titles;
    for (QAction* action : menu->actions())
        titles << action->text();
    EXPECT_TRUE(titles.contains(QStringLiteral("Office Mac")));
    EXPECT_FALSE(titles.contains(QStringLiteral("Lab"))); // imported, not yet marked for the menu

    t.app->moduleRelease(ModuleId::Vnc);
    EXPECT_FALSE(bar.shown.contains(QStringLiteral("VNC")));
}

TEST(VncModule, SnapshotListsTheHostsOfTheMenu)
{
    const struct {
        QVariantList hosts;
        QJsonArray json;
        const char* text;
    } cases[] = {
        {{kOffice, kImported},
         {QJsonObject{{"name", "Office Mac"}, {"url", "vnc://office.local:5901"}}},
         "VNC\n  Office Mac  vnc://office.local:5901\n"},
        {{kImported}, {}, "VNC\n  no hosts\n"},
    };
    for (const auto& c : cases) {
        TestApp t;
        writeVncSettings(t, c.hosts);
        t.launch();
        SnapshotReport report(t.app->collector());
        const QJsonObject root = QJsonDocument::fromJson(report.json(*t.app)).object();
        EXPECT_EQ(root.value(QStringLiteral("VNC")), QJsonValue(c.json)) << c.text;
        EXPECT_TRUE(report.text(*t.app).contains(QString::fromUtf8(c.text))) << report.text(*t.app).toStdString();
    }
}
