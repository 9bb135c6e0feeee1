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

    const QJsonObject root = QJsonDocument::fromJson(SnapshotReport::json(*t.app)).object();
    const QJsonArray cpu = root.value(QStringLiteral("CPU")).toArray();
    ASSERT_EQ(cpu.size(), 3);
    EXPECT_EQ(cpu.at(0).toArray(), (QJsonArray{30, 10, 0, 60}));
    EXPECT_EQ(cpu.at(2).toArray(), (QJsonArray{20, 10, 0, 70}));

    SnapshotReport::CpuPanelRows panel;
    panel.processor = QStringLiteral("Example CPU 2cores");
    panel.graphics = {QStringLiteral("--"), QStringLiteral("--")};
    panel.processNames = {QStringLiteral("builder"), QStringLiteral("(pid:_42)")};
    panel.processValues = {QStringLiteral("97.0%"), QStringLiteral("1.5%")};
    const QJsonObject rows =
        QJsonDocument::fromJson(SnapshotReport::json(*t.app, panel)).object().value(QStringLiteral("CPUPanel")).toObject();
    EXPECT_EQ(rows.value(QStringLiteral("load")).toString(), QStringLiteral("1min: 0.50, 5min: 0.25, 15min: 0.75"));
    EXPECT_EQ(rows.value(QStringLiteral("processes")).toArray().at(1).toObject().value(QStringLiteral("name")),
              QStringLiteral("(pid:_42)"));

    const QString text = SnapshotReport::text(*t.app, panel);
    EXPECT_TRUE(text.contains(QStringLiteral(" 97.0% builder"))) << text.toStdString();
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
    EXPECT_EQ(QJsonDocument::fromJson(SnapshotReport::json(*t.app)).object(), QJsonObject());
    EXPECT_TRUE(SnapshotReport::text(*t.app).isEmpty());
}
