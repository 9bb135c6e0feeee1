// The figures of the minute under way, folded as they arrive until the minute is over.
#pragma once

#include "history/history_types.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

// One series' figures of one minute, in stored units (see unitScale).
struct MinuteEntry {
    QString module;
    QString series;
    FigureUnit unit = FigureUnit::Percent;
    std::int64_t count = 0;
    std::int64_t sum = 0;
    std::int64_t min = 0;
    std::int64_t max = 0;
};

struct MinuteBatch {
    std::int64_t minute = 0; // minutes since the epoch
    QList<MinuteEntry> entries;
};

class MinuteAccumulator {
public:
    // Folds the figures into the minute of nowMs. When that minute is a later one than the
    // figures held so far, those are handed back as a finished batch first.
    std::optional<MinuteBatch> add(const QList<Figure>& figures, std::int64_t nowMs);
    // The minute under way, finished or not; nothing when no figure arrived in it.
    std::optional<MinuteBatch> takeAll();

private:
    std::optional<std::int64_t> minute_;
    std::map<std::pair<QString, QString>, MinuteEntry> entries_;
};

// The minute a moment falls in, counting back for moments before the epoch.
std::int64_t minuteOf(std::int64_t ms);
