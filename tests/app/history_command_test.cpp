// tarvel history run as the built program over a history file of the test's own: table, CSV, bad arguments.
#include "history/history_writer.h"

#include <QDateTime>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct HistoryRun {
    int exitCode = -1;
    QString out;
    QString err;
};

class HistoryCommand : public ::testing::Test {
protected:
    void SetUp() override
    {
        // Two minutes of CPU and one of Disk, a few minutes back, on the real clock the command reads.
        minute = QDateTime::currentSecsSinceEpoch() / 60 - 5;
        std::int64_t now = minute * 60'000;
        HistoryWriter writer(path(), [&now] { return now; });
        writer.record(
            {{"cpu", "busy", FigureUnit::Percent, 10}, {"disk", "/dev/sda read", FigureUnit::BytesPerSecond, 2048}});
        now += 30'000;
        writer.record({{"cpu", "busy", FigureUnit::Percent, 30.25}});
        now += 30'000;
        writer.record({{"cpu", "busy", FigureUnit::Percent, 50}});
        writer.finish();
    }
    QString path() const { return dir.filePath(QStringLiteral("history.sqlite")); }
    HistoryRun run(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TARVEL_HISTORY_DB"), path());
        environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TARVEL_EXECUTABLE), QStringList{QStringLiteral("history")} + arguments);
        EXPECT_TRUE(process.waitForFinished(30000));
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    QString startOf(std::int64_t m, const char* format) const
    {
        return QDateTime::fromSecsSinceEpoch(m * 60, Qt::UTC).toString(QLatin1String(format));
    }

    QTemporaryDir dir;
    std::int64_t minute = 0;
};

TEST_F(HistoryCommand, PrintsTheModulesMinutesAsATableAndAsCsv)
{
    const HistoryRun table = run({"CPU", "--since", "30m"});
    EXPECT_EQ(table.exitCode, 0) << table.err.toStdString();
    EXPECT_EQ(table.out, QStringLiteral("Series  Start             Samples   Mean    Min    Max\n"
                                        "busy    %1        2  20.1%  10.0%  30.3%\n"
                                        "busy    %2        1  50.0%  50.0%  50.0%\n")
                             .arg(startOf(minute, "yyyy-MM-dd HH:mm"), startOf(minute + 1, "yyyy-MM-dd HH:mm")));
    const HistoryRun csv = run({"disk", "--csv", "--since", "1h"});
    EXPECT_EQ(csv.out, QStringLiteral("series,unit,start,samples,mean,min,max\n"
                                      "/dev/sda read,bytes/s,%1,1,2048,2048,2048\n")
                           .arg(startOf(minute, "yyyy-MM-ddTHH:mm:00Z")));
    // Beyond three hours a row is an hour: all three CPU samples in one row or two.
    const HistoryRun hours = run({"cpu", "--csv", "--since", "2d"});
    qint64 samples = 0;
    for (const QString& line : hours.out.split(u'\n', Qt::SkipEmptyParts).mid(1))
        samples += line.section(u',', 3, 3).toLongLong();
    EXPECT_EQ(samples, 3);
    EXPECT_TRUE(hours.out.contains(startOf(minute / 60 * 60, "yyyy-MM-ddTHH:00:00Z")));
}

TEST_F(HistoryCommand, ABadArgumentGetsOneLineAndStatusTwo)
{
    for (const QStringList& arguments : {QStringList{}, QStringList{"vnc"}, QStringList{"cpu", "--since", "5x"},
                                         QStringList{"cpu", "--since", "0h"}, QStringList{"cpu", "extra"}}) {
        const HistoryRun bad = run(arguments);
        EXPECT_EQ(bad.exitCode, 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(bad.out.isEmpty());
        EXPECT_EQ(bad.err.count(u'\n'), 2) << bad.err.toStdString();
        EXPECT_TRUE(bad.err.endsWith(QStringLiteral("Try 'tarvel --help'.\n")));
    }
    // A span too short for any row prints the header alone; a module never kept likewise.
    EXPECT_EQ(run({"fan", "--csv"}).out, QStringLiteral("series,unit,start,samples,mean,min,max\n"));
}

} // namespace
