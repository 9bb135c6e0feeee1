// The history file through the writer with a fake clock: aggregates, roll-up, pruning, damage, kills.
#include "history/history_database.h"
#include "history/history_writer.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::int64_t kMinute = 60'000;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;
// A Monday at midnight UTC, so that minutes and hours start on round numbers.
constexpr std::int64_t kStart = 1'700'438'400'000;

Figure cpu(double value)
{
    return {QStringLiteral("cpu"), QStringLiteral("busy"), FigureUnit::Percent, value};
}

class HistoryFile : public ::testing::Test {
protected:
    QString path() const { return dir.filePath(QStringLiteral("history.sqlite")); }
    HistoryClock clock()
    {
        return [this] { return now; };
    }
    // Every row of the module's series at that resolution, whatever its age.
    static QList<Aggregate> all(HistoryWriter& writer, Resolution resolution, const QString& module = "cpu")
    {
        const QList<SeriesHistory> series = writer.database().read(module, resolution, -(1LL << 40), 1LL << 40);
        return series.isEmpty() ? QList<Aggregate>{} : series.front().buckets;
    }

    QTemporaryDir dir;
    std::int64_t now = kStart;
};

TEST_F(HistoryFile, AMinuteIsWrittenOnceItIsOverAsItsMeanMinimumAndMaximum)
{
    HistoryWriter writer(path(), clock());
    for (const double value : {10.0, 30.5, 20.0}) {
        writer.record({cpu(value)});
        now += 15'000;
    }
    EXPECT_EQ(writer.writes(), 0);
    EXPECT_TRUE(all(writer, Resolution::Minute).isEmpty());
    now = kStart + kMinute + 1'000;
    writer.record({cpu(50)});
    EXPECT_EQ(writer.writes(), 1);
    const std::int64_t minute = kStart / kMinute;
    EXPECT_EQ(all(writer, Resolution::Minute), (QList<Aggregate>{{minute, 3, 20.166666666666668, 10, 30.5}}));
    // The figures of another series and another module stay apart.
    writer.record({{"disk", "/dev/sda read", FigureUnit::BytesPerSecond, 4096}, cpu(70)});
    writer.finish();
    EXPECT_EQ(all(writer, Resolution::Minute).back(), (Aggregate{minute + 1, 2, 60, 50, 70}));
    EXPECT_EQ(all(writer, Resolution::Minute, "disk"), (QList<Aggregate>{{minute + 1, 1, 4096, 4096, 4096}}));
}

TEST_F(HistoryFile, MinutesRollUpIntoTheirHourWeightedByTheirSamples)
{
    HistoryWriter writer(path(), clock());
    // 59 minutes of one sample at 10 %, then one minute of three samples at 40, 50 and 60 %.
    for (int m = 0; m < 59; ++m) {
        now = kStart + m * kMinute;
        writer.record({cpu(10)});
    }
    now = kStart + 59 * kMinute;
    for (const double value : {40.0, 50.0, 60.0})
        writer.record({cpu(value)});
    now = kStart + kHour + 5'000;
    writer.record({cpu(99)});
    EXPECT_EQ(writer.writes(), 60);
    // The hour under way is read from its minutes until a minute of the next one is written.
    const Aggregate firstHour{kStart / kHour, 62, (59 * 10 + 150) / 62.0, 10, 60};
    EXPECT_EQ(all(writer, Resolution::Hour), QList<Aggregate>{firstHour});
    // A minute written twice (a quit and a start within it) adds up.
    writer.finish();
    writer.record({cpu(1)});
    writer.finish();
    EXPECT_EQ(all(writer, Resolution::Minute).back(), (Aggregate{(kStart + kHour) / kMinute, 2, 50, 1, 99}));
    EXPECT_EQ(all(writer, Resolution::Hour), (QList<Aggregate>{firstHour, {(kStart + kHour) / kHour, 2, 50, 1, 99}}));
    now = kStart + 3 * kHour;
    writer.record({cpu(7)});
    writer.finish();
    EXPECT_EQ(all(writer, Resolution::Hour).size(), 3);
}

TEST_F(HistoryFile, MinutesGoAfterAWeekAndHoursAfterAYear)
{
    HistoryWriter writer(path(), clock());
    const auto recordAt = [&](std::int64_t at, QList<Figure> figures) {
        now = kStart + at;
        writer.record(figures);
    };
    recordAt(0, {cpu(10)});
    recordAt(7 * kDay - kHour, {cpu(20)});
    recordAt(7 * kDay + 30 * kMinute, {cpu(30)});
    // Pruning counts back from the minute written: the first is not a week older than the second.
    EXPECT_EQ(all(writer, Resolution::Minute).size(), 2);
    recordAt(7 * kDay + 90 * kMinute, {cpu(40)});
    EXPECT_EQ(all(writer, Resolution::Minute).size(), 2) << "the first minute is more than a week old";
    EXPECT_EQ(all(writer, Resolution::Minute).front().mean, 20);
    EXPECT_EQ(all(writer, Resolution::Hour).size(), 3) << "two kept, one summed from its minutes";
    recordAt(365 * kDay + 90 * kMinute, {cpu(50)});
    recordAt(365 * kDay + 150 * kMinute, {});
    const QList<Aggregate> hours = all(writer, Resolution::Hour);
    ASSERT_EQ(hours.size(), 4) << "three kept, one summed from its minutes";
    EXPECT_EQ(hours.front().mean, 20) << "the first hour is more than a year old";
    EXPECT_EQ(hours.back().mean, 50);
    // What the menus ask for: the last hour only, per minute.
    const QList<SeriesHistory> lastHour = writer.read("cpu", Resolution::Minute, 3600);
    ASSERT_EQ(lastHour.size(), 1);
    EXPECT_EQ(lastHour.front().buckets.size(), 1);
    EXPECT_EQ(lastHour.front().buckets.front().mean, 50);
}

TEST_F(HistoryFile, ADamagedOrForeignFileIsSetAsideAndANewOneStarted)
{
    for (const bool foreign : {false, true}) {
        QDir(dir.path()).removeRecursively();
        QDir().mkpath(dir.path());
        if (foreign) {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("foreign"));
            db.setDatabaseName(path());
            ASSERT_TRUE(db.open());
            QSqlQuery(db).exec(QStringLiteral("CREATE TABLE notes (text TEXT)"));
            db.close();
        } else {
            QFile file(path());
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\x5a'));
        }
        const QByteArray before = [&] {
            QFile file(path());
            file.open(QIODevice::ReadOnly);
            return file.readAll();
        }();
        HistoryWriter writer(path(), clock());
        ASSERT_TRUE(writer.database().isOpen()) << foreign;
        ASSERT_TRUE(writer.database().setAsidePath().has_value()) << foreign;
        QFile aside(*writer.database().setAsidePath());
        ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
        EXPECT_EQ(aside.readAll(), before) << "set aside as it was";
        writer.record({cpu(5)});
        writer.finish();
        EXPECT_EQ(all(writer, Resolution::Minute).size(), 1);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("foreign"));
    // A file of ours that is whole is kept.
    HistoryWriter again(path(), clock());
    EXPECT_FALSE(again.database().setAsidePath().has_value());
    EXPECT_EQ(all(again, Resolution::Minute).size(), 1);
    // A file that cannot be reached is neither ours to set aside nor a reason to stop.
    HistoryWriter unreachable(dir.filePath(QStringLiteral("missing/history.sqlite")), clock());
    EXPECT_FALSE(unreachable.database().isOpen());
    unreachable.record({cpu(5)});
    unreachable.finish();
    EXPECT_FALSE(unreachable.database().setAsidePath().has_value());
    EXPECT_EQ(unreachable.writes(), 0);
}

TEST_F(HistoryFile, AWriterKilledInTheMiddleOfAMinuteLosesThatMinuteOnly)
{
    const pid_t child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        HistoryWriter writer(path(), clock());
        for (int second = 0; second < 150; ++second) {
            now = kStart + second * 1000;
            writer.record({cpu(second)});
        }
        // Killed with no chance to write the minute under way or to close the file.
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    HistoryWriter writer(path(), clock());
    EXPECT_FALSE(writer.database().setAsidePath().has_value());
    const QList<Aggregate> minutes = all(writer, Resolution::Minute);
    ASSERT_EQ(minutes.size(), 2);
    EXPECT_EQ(minutes[0], (Aggregate{kStart / kMinute, 60, 29.5, 0, 59}));
    EXPECT_EQ(minutes[1], (Aggregate{kStart / kMinute + 1, 60, 89.5, 60, 119}));
    // The killed writer's hour is rolled up from its minutes once the next hour is written.
    now = kStart + kHour;
    writer.record({cpu(0)});
    writer.finish();
    EXPECT_EQ(all(writer, Resolution::Hour).front(), (Aggregate{kStart / kHour, 120, 59.5, 0, 119}));
}


TEST_F(HistoryFile, TwoMonitorsStartingTheSameSeriesShareItsRow)
{
    // Both list the series at opening, before either has any; each then adds the same one.
    HistoryWriter first(path(), clock());
    HistoryWriter second(path(), clock());
    first.record({cpu(10)});
    second.record({cpu(30)});
    now += kMinute;
    first.record({cpu(20)});
    second.record({cpu(40)});
    EXPECT_EQ(first.writes(), 1);
    EXPECT_EQ(second.writes(), 1);
    const QList<SeriesHistory> series = first.database().read("cpu", Resolution::Minute, -(1LL << 40), 1LL << 40);
    ASSERT_EQ(series.size(), 1);
    ASSERT_EQ(series.front().buckets.size(), 1);
    EXPECT_EQ(series.front().buckets.front().count, 2) << "both monitors' samples of the minute";
}

TEST_F(HistoryFile, AWriterWaitsForAnotherMonitorsMinuteRatherThanLosingItsOwn)
{
    HistoryWriter writer(path(), clock());
    writer.record({cpu(10)});
    now += kMinute;
    writer.record({cpu(20)});
    ASSERT_EQ(writer.writes(), 1);
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        // Another monitor's connection, in the middle of its own minute's transaction.
        QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
        other.setDatabaseName(path());
        QSqlQuery query(other);
        const bool held = other.open() && query.exec(QStringLiteral("BEGIN IMMEDIATE"));
        const char said = held ? '1' : '0';
        [[maybe_unused]] const auto written = write(ready[1], &said, 1);
        usleep(300'000);
        query.exec(QStringLiteral("COMMIT"));
        _exit(0);
    }
    char said = 0;
    ASSERT_EQ(read(ready[0], &said, 1), 1);
    ASSERT_EQ(said, '1');
    now += kMinute;
    writer.record({cpu(30)});
    EXPECT_EQ(writer.writes(), 2);
    int status = 0;
    waitpid(child, &status, 0);
    close(ready[0]);
    close(ready[1]);
    EXPECT_EQ(all(writer, Resolution::Minute).size(), 2);
}

} // namespace
