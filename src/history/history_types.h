// What the long-term history keeps: figures as sampled, and their per-minute and per-hour aggregates.
#pragma once

#include <QList>
#include <QString>

#include <cstdint>
#include <functional>

// How a series' figures are measured; it also fixes the precision they are kept with.
enum class FigureUnit { Percent, Bytes, BytesPerSecond, Celsius, Rpm };

// One sampled figure: the module's key in lower case ("cpu"), the series within it ("busy",
// "/dev/sda read") and the value in its unit.
struct Figure {
    QString module;
    QString series;
    FigureUnit unit = FigureUnit::Percent;
    double value = 0;
};

// The figures of one bucket: a minute or an hour, counted from the epoch in UTC.
struct Aggregate {
    std::int64_t bucket = 0;
    std::int64_t count = 0;
    double mean = 0;
    double min = 0;
    double max = 0;
    bool operator==(const Aggregate&) const = default;
};

// One series with its buckets, oldest first.
struct SeriesHistory {
    QString module;
    QString series;
    FigureUnit unit = FigureUnit::Percent;
    QList<Aggregate> buckets;
};

enum class Resolution { Minute, Hour };

// The seconds one bucket of a resolution spans.
constexpr std::int64_t bucketSeconds(Resolution resolution)
{
    return resolution == Resolution::Minute ? 60 : 3600;
}

// Milliseconds since the epoch: the wall clock in the program, a fake one in tests and benches.
using HistoryClock = std::function<std::int64_t()>;

// How long each resolution is kept.
inline constexpr std::int64_t kMinuteKeepSeconds = 7 * 24 * 3600;
inline constexpr std::int64_t kHourKeepSeconds = 365 * 24 * 3600;

// The stored integer is the value times this: hundredths of a per cent, tenths of a degree,
// whole bytes and revolutions. Whole numbers take fewer bytes in the database than reals.
constexpr double unitScale(FigureUnit unit)
{
    switch (unit) {
    case FigureUnit::Percent:
        return 100;
    case FigureUnit::Celsius:
        return 10;
    case FigureUnit::Bytes:
    case FigureUnit::BytesPerSecond:
    case FigureUnit::Rpm:
        break;
    }
    return 1;
}
