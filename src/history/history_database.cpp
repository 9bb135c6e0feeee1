// Opening, checking, writing and reading the history file; a damaged file is set aside, never lost.
#include "history/history_database.h"

#include "history/history_log.h"
#include "toolkit/guarded_file.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <atomic>

namespace {

// "TVHL" in the file's header marks it as ours; a newer layout would raise the version.
constexpr qint64 kApplicationId = 0x5456484C;
constexpr qint64 kSchemaVersion = 1;

const char* const kSchema[] = {
    "CREATE TABLE series (id INTEGER PRIMARY KEY, module TEXT NOT NULL, name TEXT NOT NULL, "
    "unit INTEGER NOT NULL, UNIQUE (module, name))",
    "CREATE TABLE minutes (series INTEGER NOT NULL, bucket INTEGER NOT NULL, count INTEGER NOT NULL, "
    "sum INTEGER NOT NULL, min INTEGER NOT NULL, max INTEGER NOT NULL, PRIMARY KEY (bucket, series)) WITHOUT ROWID",
    "CREATE TABLE hours (series INTEGER NOT NULL, bucket INTEGER NOT NULL, count INTEGER NOT NULL, "
    "sum INTEGER NOT NULL, min INTEGER NOT NULL, max INTEGER NOT NULL, PRIMARY KEY (bucket, series)) WITHOUT ROWID",
};

// The complete hours whose minutes are not rolled up yet, each written once, in key order: rows
// that are never rewritten keep their pages full. Hours are rolled up in order, so the newest
// hour row marks how far the roll-up got, after a stop of any length too.
const char* const kRollUp = "INSERT OR IGNORE INTO hours (bucket, series, count, sum, min, max) "
                            "SELECT bucket / 60, series, sum(count), sum(sum), min(min), max(max) FROM minutes "
                            "WHERE bucket >= (SELECT coalesce(max(bucket) + 1, 0) FROM hours) * 60 AND bucket < ? * 60 "
                            "GROUP BY bucket / 60, series ORDER BY bucket / 60, series";

// Hours as kept, and the hour under way summed from its minutes so far.
const char* const kReadHours =
    "WITH t AS (SELECT series, bucket, count, sum, min, max FROM hours WHERE bucket BETWEEN ? AND ? "
    "UNION ALL SELECT series, bucket / 60, sum(count), sum(sum), min(min), max(max) FROM minutes "
    "WHERE bucket >= (SELECT coalesce(max(bucket) + 1, 0) FROM hours) * 60 AND bucket BETWEEN ? * 60 AND ? * 60 + 59 "
    "GROUP BY bucket / 60, series) "
    "SELECT s.id, s.name, s.unit, t.bucket, t.count, t.sum, t.min, t.max FROM t JOIN series s ON s.id = t.series "
    "WHERE s.module = ? ORDER BY s.id, t.bucket";

// A minute written twice (the program quit and came back within it) adds up rather than replaces.
QString upsert(const char* table)
{
    return QStringLiteral("INSERT INTO %1 (series, bucket, count, sum, min, max) VALUES (?, ?, ?, ?, ?, ?) "
                          "ON CONFLICT (bucket, series) DO UPDATE SET count = count + excluded.count, "
                          "sum = sum + excluded.sum, min = min(min, excluded.min), max = max(max, excluded.max)")
        .arg(QLatin1String(table));
}

QString seriesKey(const QString& module, const QString& series)
{
    return module + u'\n' + series;
}

// SQLite's own word that the file is not a database or is corrupt, as opposed to one it cannot
// reach now (a full disk, a folder it may not write, another writer's lock).
bool isDamage(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    return code == 11 || code == 26; // SQLITE_CORRUPT, SQLITE_NOTADB
}

std::optional<qint64> singleInteger(QSqlDatabase& db, const QString& sql, QSqlError& error)
{
    QSqlQuery query(db);
    if (!query.exec(sql) || !query.next()) {
        error = query.lastError();
        return std::nullopt;
    }
    return query.value(0).toLongLong();
}

} // namespace

struct HistoryDatabase::Statements {
    explicit Statements(const QSqlDatabase& db)
        : insertSeries(db)
        , minute(db)
        , rollUp(db)
        , pruneMinutes(db)
        , pruneHours(db)
    {}
    bool prepare()
    {
        // Another monitor on the same file may have added the series since this one listed them:
        // then its row is the one to use.
        return insertSeries.prepare(QStringLiteral("INSERT INTO series (module, name, unit) VALUES (?, ?, ?) "
                                                   "ON CONFLICT (module, name) DO UPDATE SET module = module "
                                                   "RETURNING id")) &&
               minute.prepare(upsert("minutes")) && rollUp.prepare(QLatin1String(kRollUp)) &&
               pruneMinutes.prepare(QStringLiteral("DELETE FROM minutes WHERE bucket < ?")) &&
               pruneHours.prepare(QStringLiteral("DELETE FROM hours WHERE bucket < ?"));
    }
    QSqlQuery insertSeries, minute, rollUp, pruneMinutes, pruneHours;
};

HistoryDatabase::HistoryDatabase(QString path, bool durable)
    : path_(std::move(path))
    , durable_(durable)
{
    static std::atomic<int> serial{0};
    connectionName_ = QStringLiteral("tarvel-history-%1").arg(++serial);
}

HistoryDatabase::~HistoryDatabase()
{
    close();
}

void HistoryDatabase::close()
{
    statements_.reset();
    seriesIds_.clear();
    prunedHour_.reset();
    if (db_.isValid()) {
        db_.close();
        db_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(connectionName_);
    }
}

bool HistoryDatabase::isOpen() const
{
    return statements_ != nullptr;
}

bool HistoryDatabase::open()
{
    setAside_.reset();
    switch (openOnce()) {
    case OpenResult::Ready:
        return true;
    case OpenResult::Unavailable:
        qCWarning(lcHistory) << "history database cannot be opened now:" << path_;
        return false;
    case OpenResult::Damaged:
        break;
    }
    qCWarning(lcHistory) << "history database damaged or not ours:" << path_;
    return setAsideAndReopen();
}

bool HistoryDatabase::setAsideAndReopen()
{
    close();
    setAside_ = GuardedFile::setAside(path_);
    if (!setAside_)
        return false;
    // The log's and index's files belong with the file they were written for.
    for (const char* suffix : {"-wal", "-shm"}) {
        if (QFileInfo::exists(path_ + QLatin1String(suffix)))
            GuardedFile::setAside(path_ + QLatin1String(suffix));
    }
    qCWarning(lcHistory) << "history database set aside as" << *setAside_;
    return openOnce() == OpenResult::Ready;
}

HistoryDatabase::OpenResult HistoryDatabase::openOnce()
{
    close();
    db_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName_);
    db_.setDatabaseName(path_);
    // A second monitor on the same history (the text view beside the tray, `serve` beside the
    // bar) writes its minute too: wait for its transaction rather than lose ours.
    db_.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000"));
    if (!db_.open()) {
        close();
        return OpenResult::Unavailable;
    }
    if (const OpenResult schema = prepareSchema(); schema != OpenResult::Ready) {
        close();
        return schema;
    }
    QSqlQuery pragma(db_);
    pragma.exec(QStringLiteral("PRAGMA journal_mode = WAL"));
    // The log is emptied at each checkpoint; without a limit its file keeps its largest size.
    pragma.exec(QStringLiteral("PRAGMA journal_size_limit = 1048576"));
    pragma.exec(durable_ ? QStringLiteral("PRAGMA synchronous = FULL") : QStringLiteral("PRAGMA synchronous = OFF"));
    statements_ = std::make_unique<Statements>(db_);
    if (!loadSeriesIds() || !statements_->prepare()) {
        const OpenResult result = isDamage(db_.lastError()) ? OpenResult::Damaged : OpenResult::Unavailable;
        close();
        return result;
    }
    return OpenResult::Ready;
}

bool HistoryDatabase::loadSeriesIds()
{
    seriesIds_.clear();
    QSqlQuery series(db_);
    if (!series.exec(QStringLiteral("SELECT id, module, name FROM series")))
        return false;
    while (series.next())
        seriesIds_.insert(seriesKey(series.value(1).toString(), series.value(2).toString()),
                          series.value(0).toLongLong());
    return true;
}

// An empty file becomes ours; one of ours must be of this layout and pass SQLite's own check.
HistoryDatabase::OpenResult HistoryDatabase::prepareSchema()
{
    QSqlError error;
    const std::optional<qint64> id = singleInteger(db_, QStringLiteral("PRAGMA application_id"), error);
    const std::optional<qint64> tables =
        id ? singleInteger(db_, QStringLiteral("SELECT count(*) FROM sqlite_master"), error) : std::nullopt;
    if (!id || !tables)
        return isDamage(error) ? OpenResult::Damaged : OpenResult::Unavailable;
    if (*id == kApplicationId) {
        const std::optional<qint64> version = singleInteger(db_, QStringLiteral("PRAGMA user_version"), error);
        if (!version)
            return isDamage(error) ? OpenResult::Damaged : OpenResult::Unavailable;
        QSqlQuery check(db_);
        if (*version != kSchemaVersion)
            return OpenResult::Damaged;
        if (!check.exec(QStringLiteral("PRAGMA quick_check")) || !check.next())
            return isDamage(check.lastError()) ? OpenResult::Damaged : OpenResult::Unavailable;
        return check.value(0).toString() == QLatin1String("ok") ? OpenResult::Ready : OpenResult::Damaged;
    }
    if (*id != 0 || *tables != 0)
        return OpenResult::Damaged;
    QSqlQuery query(db_);
    if (!db_.transaction())
        return OpenResult::Unavailable;
    for (const char* statement : kSchema) {
        if (!query.exec(QLatin1String(statement))) {
            db_.rollback();
            return OpenResult::Unavailable;
        }
    }
    query.exec(QStringLiteral("PRAGMA application_id = %1").arg(kApplicationId));
    query.exec(QStringLiteral("PRAGMA user_version = %1").arg(kSchemaVersion));
    return db_.commit() ? OpenResult::Ready : OpenResult::Unavailable;
}

bool HistoryDatabase::writeMinute(const MinuteBatch& batch)
{
    if (!isOpen() && !open())
        return false;
    if (writeInTransaction(batch))
        return true;
    // A failed write on a file that still passes its check (a full disk) is this minute lost,
    // nothing more; one that fails it is set aside and the minute goes to a new file.
    qCWarning(lcHistory) << "history write failed:" << failure_.text();
    if (openOnce() != OpenResult::Damaged)
        return false;
    return setAsideAndReopen() && writeInTransaction(batch);
}

bool HistoryDatabase::writeInTransaction(const MinuteBatch& batch)
{
    if (!db_.transaction()) {
        failure_ = db_.lastError();
        return false;
    }
    const std::int64_t hour = batch.minute >= 0 ? batch.minute / 60 : -((-batch.minute + 59) / 60);
    bool ok = true;
    for (const MinuteEntry& entry : batch.entries) {
        const std::optional<std::int64_t> id = seriesId(entry);
        ok = id.has_value();
        if (!ok)
            break;
        QSqlQuery& query = statements_->minute;
        for (const qint64 value : {*id, batch.minute, entry.count, entry.sum, entry.min, entry.max})
            query.addBindValue(value);
        ok = execRecording(query);
        if (!ok)
            break;
    }
    // Once an hour: the hours before this one are complete, and rolled up before their minutes
    // can be pruned.
    if (ok && prunedHour_ != hour) {
        statements_->rollUp.addBindValue(qint64{hour});
        ok = execRecording(statements_->rollUp) && prune(batch.minute);
    }
    if (ok && db_.commit()) {
        prunedHour_ = hour;
        return true;
    }
    if (ok)
        failure_ = db_.lastError();
    db_.rollback();
    // Series made in the failed transaction are gone with it.
    loadSeriesIds();
    return false;
}

bool HistoryDatabase::execRecording(QSqlQuery& statement)
{
    if (statement.exec())
        return true;
    failure_ = statement.lastError();
    return false;
}

std::optional<std::int64_t> HistoryDatabase::seriesId(const MinuteEntry& entry)
{
    const QString key = seriesKey(entry.module, entry.series);
    if (const auto it = seriesIds_.constFind(key); it != seriesIds_.cend())
        return it.value();
    QSqlQuery& insert = statements_->insertSeries;
    insert.addBindValue(entry.module);
    insert.addBindValue(entry.series);
    // Stored as the enumeration's number: its order is part of the file's layout.
    insert.addBindValue(static_cast<int>(entry.unit));
    if (!execRecording(insert) || !insert.next())
        return std::nullopt;
    const std::int64_t id = insert.value(0).toLongLong();
    insert.finish();
    seriesIds_.insert(key, id);
    return id;
}

// Once an hour the minutes past a week and the hours past a year go. Rows are keyed by bucket
// first, so both are a range at the front of their table, and new rows always go at its end,
// which keeps the pages full.
bool HistoryDatabase::prune(std::int64_t minute)
{
    const std::int64_t oldestMinute = minute - kMinuteKeepSeconds / 60;
    const std::int64_t oldestHour = (minute - kHourKeepSeconds / 60) / 60;
    for (auto [query, bucket] :
         {std::pair{&statements_->pruneMinutes, oldestMinute}, std::pair{&statements_->pruneHours, oldestHour}}) {
        query->addBindValue(qint64{bucket});
        if (!execRecording(*query))
            return false;
    }
    return true;
}

QList<SeriesHistory> HistoryDatabase::read(const QString& module, Resolution resolution, std::int64_t firstBucket,
                                           std::int64_t lastBucket)
{
    QList<SeriesHistory> result;
    if (!isOpen())
        return result;
    QSqlQuery query(db_);
    query.setForwardOnly(true);
    if (resolution == Resolution::Minute) {
        query.prepare(QStringLiteral("SELECT s.id, s.name, s.unit, t.bucket, t.count, t.sum, t.min, t.max "
                                     "FROM minutes t JOIN series s ON s.id = t.series "
                                     "WHERE t.bucket BETWEEN ? AND ? AND s.module = ? ORDER BY s.id, t.bucket"));
    } else {
        query.prepare(QLatin1String(kReadHours));
    }
    // The hours' text asks for the span twice: as hours, then as their minutes.
    for (int span = 0; span < (resolution == Resolution::Minute ? 1 : 2); ++span) {
        query.addBindValue(qint64{firstBucket});
        query.addBindValue(qint64{lastBucket});
    }
    query.addBindValue(module);
    if (!query.exec())
        return result;
    std::int64_t currentId = -1;
    while (query.next()) {
        const std::int64_t id = query.value(0).toLongLong();
        if (id != currentId || result.isEmpty()) {
            currentId = id;
            const int unit = query.value(2).toInt();
            const auto figureUnit = unit >= 0 && unit <= static_cast<int>(FigureUnit::Rpm)
                                        ? static_cast<FigureUnit>(unit)
                                        : FigureUnit::Bytes;
            result.append({module, query.value(1).toString(), figureUnit, {}});
        }
        const double scale = unitScale(result.back().unit);
        const std::int64_t count = query.value(4).toLongLong();
        if (count <= 0)
            continue;
        result.back().buckets.append({query.value(3).toLongLong(), count,
                                      query.value(5).toDouble() / static_cast<double>(count) / scale,
                                      query.value(6).toDouble() / scale, query.value(7).toDouble() / scale});
    }
    return result;
}

QStringList HistoryDatabase::modules()
{
    QStringList names;
    QSqlQuery query(db_);
    if (isOpen() && query.exec(QStringLiteral("SELECT module FROM series GROUP BY module ORDER BY min(id)"))) {
        while (query.next())
            names.append(query.value(0).toString());
    }
    return names;
}
