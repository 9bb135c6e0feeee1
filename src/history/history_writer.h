// The history's work on one thread: folding figures by the minute and writing each finished minute.
#pragma once

#include "history/history_database.h"
#include "history/history_types.h"
#include "history/minute_accumulator.h"

#include <QList>
#include <QString>

#include <cstdint>

class HistoryWriter {
public:
    HistoryWriter(const QString& path, HistoryClock clock, bool durable = true);

    // Folds the figures into the minute under way; the first call of a later minute writes the
    // one before in a single transaction. An empty list only does that.
    void record(const QList<Figure>& figures);
    // Writes the minute under way, finished or not: the program is quitting.
    void finish();

    // The module's series over the last seconds, per minute or per hour.
    QList<SeriesHistory> read(const QString& module, Resolution resolution, std::int64_t seconds);

    std::int64_t now() const { return clock_(); }
    HistoryDatabase& database() { return database_; }
    // Transactions written so far.
    std::int64_t writes() const { return writes_; }

private:
    void write(const MinuteBatch& batch);

    HistoryClock clock_;
    HistoryDatabase database_;
    MinuteAccumulator accumulator_;
    std::int64_t writes_ = 0;
};

// The buckets of the last seconds up to nowMs: from the one that holds nowMs - seconds to the
// one that holds nowMs.
std::pair<std::int64_t, std::int64_t> bucketSpan(Resolution resolution, std::int64_t nowMs, std::int64_t seconds);
