// The SQLite file of the long-term history: a series table and two aggregate tables.
#pragma once

#include "history/history_types.h"
#include "history/minute_accumulator.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>

// One connection, to be used on the thread that opened it only (Qt SQL's rule).
//
// series(id, module, name, unit); minutes and hours (series, bucket, count, sum, min, max)
// keyed by bucket and series, in stored units. A minute is written once, in one transaction
// that, once an hour, also rolls the complete hours up from their minutes and drops what is past keeping.
class HistoryDatabase {
public:
    // durable: every minute's transaction reaches the disk before the write returns. Benches
    // that write a simulated year turn it off; the program never does.
    explicit HistoryDatabase(QString path, bool durable = true);
    ~HistoryDatabase();
    HistoryDatabase(const HistoryDatabase&) = delete;
    HistoryDatabase& operator=(const HistoryDatabase&) = delete;

    // Opens or creates the file. One that is not a history database of ours, or is damaged, is
    // set aside beside itself and a new one started. False when no database could be had.
    bool open();
    bool isOpen() const;
    // Where a damaged file was moved by the last open, if one was.
    const std::optional<QString>& setAsidePath() const { return setAside_; }

    // Writes one finished minute. A write that fails on a damaged file sets it aside and
    // writes the minute into a new one.
    bool writeMinute(const MinuteBatch& batch);

    // The module's series with their buckets from firstBucket to lastBucket, oldest first.
    QList<SeriesHistory> read(const QString& module, Resolution resolution, std::int64_t firstBucket,
                              std::int64_t lastBucket);
    // The modules that have any series, in the order they first wrote.
    QStringList modules();

private:
    struct Statements;
    enum class OpenResult {
        Ready,
        Damaged,     // not a database, corrupt, or not one of ours: to be set aside
        Unavailable, // cannot be reached now (a full disk, no write access): left as it is
    };
    OpenResult openOnce();
    OpenResult prepareSchema();
    bool loadSeriesIds();
    void close();
    bool setAsideAndReopen();
    bool writeInTransaction(const MinuteBatch& batch);
    // Runs a prepared statement of a minute's write; a failure is kept for the write's warning.
    bool execRecording(QSqlQuery& statement);
    std::optional<std::int64_t> seriesId(const MinuteEntry& entry);
    bool prune(std::int64_t minute);

    QString path_;
    QString connectionName_;
    bool durable_;
    QSqlDatabase db_;
    std::unique_ptr<Statements> statements_;
    QHash<QString, std::int64_t> seriesIds_; // "module\nseries"
    std::optional<std::int64_t> prunedHour_;
    // Why the last write failed, for the warning.
    QSqlError failure_;
    std::optional<QString> setAside_;
};
