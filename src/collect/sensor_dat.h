// The machine's sensor description, built once at start-up, and what the Temp and Fan collectors sample.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

// The sample's key for the average of its valid readings.
inline constexpr char kAverageTempKey[] = "__AverageTempKey";
inline constexpr char kAverageFanKey[] = "__AverageFanKey";

// One temperature sensor of the table.
struct TempSensorEntry {
    // What it is read by: an SMC key ("TC0P"), or where the platform has none, the input's
    // lasting name (the device below sys and the attribute), never a number that changes on boot.
    QString key;
    QString name;  // what it is shown as, unique within the table
    QString group; // the chip it sits on, for grouping in the menu; empty for the SMC's keys
    // The chip's own marks in whole degrees Celsius, where it gives them.
    std::optional<int> high;
    std::optional<int> critical;
};

// One fan of the fan list, fixed at start-up.
struct FanEntry {
    QString name;
    QString idKey;    // "F0ID"
    QString speedKey; // "F0Ac"
    // The fan's own limits in revolutions per minute, where it gives them.
    std::optional<int> minimum;
    std::optional<int> maximum;
};

struct SensorDatDict {
    // "temp_data": absent when no sensor is named at all.
    std::optional<QList<TempSensorEntry>> tempData;
    // "fan_data": empty when the machine lists no fan.
    QList<FanEntry> fanData;
};

// What the start-up filter gives: the sensors that answered, and the keys never to read again.
struct TempDetail {
    QList<TempSensorEntry> entries;
    QStringList removedTempKeys; // empty: the stored list is to be removed
};

// One Temp or Fan sample: display name to whole degrees Celsius or revolutions per minute, and
// the average (absent when no reading was valid).
struct SensorSample {
    QMap<QString, qint64> values;
    std::optional<qint64> average;

    bool empty() const { return values.isEmpty() && !average; }
    // The named sensor's or fan's reading; none when it gave no valid one this time.
    std::optional<qint64> reading(const QString& name) const
    {
        const auto it = values.constFind(name);
        return it == values.cend() ? std::nullopt : std::optional<qint64>(it.value());
    }
};

// A drive's own temperature report: its model and whole degrees (0 when not read).
struct SmartReading {
    QString model;
    int temperature = 0;
};
