// The snapshot report: the JSON layout scripts rely on, and the menu-bar texts.
#include "test_app.h"

#include "app/snapshot_report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

TEST(SnapshotReport, CpuSampleIsAnArrayOfFourNumberRecords)
{
    TestApp t;
    t.queueTicks({{0, 0, 0, 0}, {0, 0, 0, 0}});
    t.queueTicks({{30, 10, 0, 60}, {10, 10, 0, 80}});
    t.launch();
    t.executor->finishCycle();
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();

    SnapshotReport report(t.app->collector());
    report.cycleFinished();
    const QJsonObject root = QJsonDocument::fromJson(report.json(*t.app)).object();
    const QJsonArray cpu = root.value(QStringLiteral("CPU")).toArray();
    ASSERT_EQ(cpu.size(), 3);
    EXPECT_EQ(cpu.at(0).toArray(), (QJsonArray{30, 10, 0, 60}));
    EXPECT_EQ(cpu.at(2).toArray(), (QJsonArray{20, 10, 0, 70}));

    const QJsonObject rows = root.value(QStringLiteral("CPUPanel")).toObject();
    EXPECT_EQ(rows.value(QStringLiteral("load")).toString(), QStringLiteral("1min: 0.50, 5min: 0.25, 15min: 0.75"));
    EXPECT_EQ(rows.value(QStringLiteral("graphics")).toArray().size(), 2);
    EXPECT_TRUE(rows.value(QStringLiteral("processes")).isArray());

    const QString text = report.text(*t.app);
    EXPECT_TRUE(text.startsWith(QStringLiteral("CPU\n"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("all    user 20%  system 10%"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("1min: 0.50, 5min: 0.25, 15min: 0.75"))) << text.toStdString();
}

TEST(SnapshotReport, SwitchedOffModulesAreLeftOut)
{
    TestApp t;
    {
        PlistSettingsStore store(t.settingsPath());
        store.setString(QStringLiteral("AppVersion"), QStringLiteral("6.0.0"));
        store.synchronize();
    }
    t.launch();
    SnapshotReport report(t.app->collector());
    EXPECT_EQ(QJsonDocument::fromJson(report.json(*t.app)).object(), QJsonObject());
    EXPECT_TRUE(report.text(*t.app).isEmpty());
}
