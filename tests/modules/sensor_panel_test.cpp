// The Temp and Fan menus' rows: grouping by chip, marks, averages, drives, and saying when
// nothing was found; the panel lays itself out again only when the rows change shape.
#include "modules/fan/fan_panel_rows.h"
#include "modules/sensor_panel.h"
#include "modules/temp/temp_panel_rows.h"

#include "sensor_samples.h"

#include <gtest/gtest.h>

namespace {

using Kind = SensorPanelRow::Kind;

QString text(const QList<SensorPanelRow>& rows)
{
    return sensorPanelText(rows, QString());
}

} // namespace

TEST(TempPanelRows, GroupsByChipWithMarksTheAverageAndTheDrives)
{
    const QList<TempSensorEntry> table{
        {QStringLiteral("devices/platform/coretemp.0/temp1"), QStringLiteral("Package"), QStringLiteral("coretemp"), 80,
         100},
        {QStringLiteral("devices/pci0000:00/nvme/nvme0/temp1"), QStringLiteral("Nvme Composite"), QStringLiteral("nvme"),
         std::nullopt, 84},
        {QStringLiteral("devices/platform/coretemp.0/temp2"), QStringLiteral("Core 0"), QStringLiteral("coretemp"), {}, {}},
    };
    const QList<SmartReading> drives{{QStringLiteral("---"), 0}, {QStringLiteral("WDC WD40"), 35},
                                     {QStringLiteral("ST1000"), 0}};
    // Core 0 gave no valid reading this time; the second drive was only listed.
    const auto rows = tempPanelRows(table, sensorSample({{"Package", 52}, {"Nvme Composite", 41}}, 46),
                                    {1, QStringLiteral("°C")}, drives);
    EXPECT_EQ(text(rows), QStringLiteral("coretemp\n"
                                         "Package  52°C  (high 80°C, critical 100°C)\n"
                                         "Core 0  ---\n"
                                         "nvme\n"
                                         "Nvme Composite  41°C  (critical 84°C)\n"
                                         "Average  46°C\n"
                                         "Drives\n"
                                         "WDC WD40  35°C\n"
                                         "ST1000  ---\n"));

    // Marks follow the unit too.
    const auto kelvin = tempPanelRows(QList<TempSensorEntry>{table.first()}, sensorSample({{"Package", 52}}, 52),
                                      {3, QStringLiteral("K")}, {});
    EXPECT_EQ(kelvin.at(1).marks, QStringLiteral("high 353K, critical 373K"));
}

TEST(TempPanelRows, SaysWhenTheMachineNamesNoSensor)
{
    for (const auto& table : {std::optional<QList<TempSensorEntry>>(), std::optional(QList<TempSensorEntry>())}) {
        const auto rows = tempPanelRows(table, {}, {1, QStringLiteral("°C")}, {});
        ASSERT_EQ(rows.size(), 1);
        EXPECT_EQ(rows.first().kind, Kind::Note);
        EXPECT_EQ(rows.first().name, QStringLiteral("No temperature sensors were found."));
    }
}

TEST(FanPanelRows, ListsEveryFanWithItsLimitsAndTheAverage)
{
    const QList<FanEntry> fans{{QStringLiteral("Leftside"), QStringLiteral("F0ID"), QStringLiteral("F0Ac"), 1200, 6200},
                               {QStringLiteral("(Untitled Fan #2)"), QStringLiteral("F1ID"), QStringLiteral("F1Ac"), {}, {}}};
    EXPECT_EQ(text(fanPanelRows(fans, sensorSample({{"Leftside", 1998}, {"(Untitled Fan #2)", 0}}, 999))),
              QStringLiteral("Leftside  1998 rpm  (min 1200 rpm, max 6200 rpm)\n"
                             "(Untitled Fan #2)  0 rpm\n"
                             "Average  999 rpm\n"));
    const auto none = fanPanelRows({}, {});
    ASSERT_EQ(none.size(), 1);
    EXPECT_EQ(none.first().name, QStringLiteral("No fans were found."));
}

TEST(SensorPanel, KeepsItsLayoutWhileOnlyTheFiguresChange)
{
    SensorPanel panel;
    const QList<SensorPanelRow> first{{Kind::Heading, QStringLiteral("coretemp"), {}, {}},
                                      {Kind::Reading, QStringLiteral("Core 0"), QStringLiteral("40°C"), {}}};
    panel.setRows(first);
    const auto labels = panel.findChildren<QWidget*>();
    QList<SensorPanelRow> warmer = first;
    warmer[1].value = QStringLiteral("41°C");
    panel.setRows(warmer);
    EXPECT_EQ(panel.findChildren<QWidget*>(), labels);
    EXPECT_EQ(panel.rows(), warmer);

    // A sensor more, or a reset count, lays the rows out afresh.
    warmer.append({Kind::Reading, QStringLiteral("Core 1"), QStringLiteral("39°C"), {}});
    panel.setRows(warmer);
    EXPECT_EQ(panel.findChildren<QWidget*>().size(), labels.size() + 3);
    bool relaidOut = false;
    QObject::connect(panel.findChildren<QWidget*>().first(), &QObject::destroyed, [&relaidOut] { relaidOut = true; });
    panel.setRows(warmer);
    EXPECT_FALSE(relaidOut);
    panel.resetMenuNowCount();
    panel.setRows(warmer);
    EXPECT_TRUE(relaidOut);
    EXPECT_EQ(panel.findChildren<QWidget*>().size(), labels.size() + 3);
}
