// Prints the history file's size after a simulated year with every module on, and the cost of a minute's write.
#include "history/history_writer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

constexpr std::int64_t kStart = 1'700'438'400'000; // a Monday, midnight UTC
constexpr std::int64_t kDayMs = 24 * 3600 * 1000;

// A well-equipped machine with every module on: 3 disks, 5 volumes, 15 temperature sensors.
QList<Figure> machineFigures(QRandomGenerator& random)
{
    const auto between = [&](double low, double high) { return low + random.generateDouble() * (high - low); };
    QList<Figure> figures{{"cpu", "busy", FigureUnit::Percent, between(0, 100)},
                          {"memory", "used", FigureUnit::Bytes, between(2e9, 14e9)},
                          {"memory", "app", FigureUnit::Bytes, between(1e9, 10e9)},
                          {"memory", "cached", FigureUnit::Bytes, between(1e9, 6e9)},
                          {"memory", "swap used", FigureUnit::Bytes, between(0, 2e9)},
                          {"network", "up", FigureUnit::BytesPerSecond, between(0, 5e6)},
                          {"network", "down", FigureUnit::BytesPerSecond, between(0, 5e7)},
                          {"temp", "average", FigureUnit::Celsius, between(30, 80)},
                          {"fan", "average", FigureUnit::Rpm, between(800, 4000)}};
    for (const char* disk : {"/dev/nvme0n1", "/dev/sda", "/dev/sdb"}) {
        figures.append(
            {"disk", QLatin1String(disk) + QStringLiteral(" read"), FigureUnit::BytesPerSecond, between(0, 2e8)});
        figures.append(
            {"disk", QLatin1String(disk) + QStringLiteral(" write"), FigureUnit::BytesPerSecond, between(0, 2e8)});
    }
    for (const char* volume : {"/", "/home", "/boot", "/var", "/srv"})
        figures.append({"volume", QLatin1String(volume), FigureUnit::Percent, between(10, 95)});
    for (int sensor = 1; sensor <= 15; ++sensor)
        figures.append({"temp", QStringLiteral("Core %1").arg(sensor), FigureUnit::Celsius, between(30, 90)});
    return figures;
}

qint64 fileSize(const QString& path)
{
    qint64 size = 0;
    for (const char* suffix : {"", "-wal", "-shm"})
        size += QFileInfo(path + QLatin1String(suffix)).size();
    return size;
}

// Minutes written to the disk as the program writes them, each waiting for its sync.
void durableMinutes(const QString& path, int minutes)
{
    std::int64_t now = kStart;
    HistoryWriter writer(path, [&now] { return now; });
    QRandomGenerator random(7);
    std::vector<double> costs;
    for (int m = 0; m < minutes; ++m) {
        writer.record(machineFigures(random));
        now += 60'000;
        const auto start = std::chrono::steady_clock::now();
        writer.record({});
        costs.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(costs.begin(), costs.end());
    std::printf("one minute's transaction, synced: median %.2f ms, 99th percentile %.2f ms (%d minutes)\n",
                costs[costs.size() / 2], costs[costs.size() * 99 / 100], minutes);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    // Each line as it comes: the year takes minutes.
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const int days = argc > 1 ? std::max(1, QString::fromLocal8Bit(argv[1]).toInt()) : 365;
    QTemporaryDir dir;
    durableMinutes(dir.filePath(QStringLiteral("durable.sqlite")), 300);

    // The year: a sample every 20 seconds, the clock faked, each minute written once when over.
    const QString path = dir.filePath(QStringLiteral("year.sqlite"));
    std::int64_t now = kStart;
    HistoryWriter writer(
        path, [&now] { return now; }, false);
    QRandomGenerator random(1);
    const auto start = std::chrono::steady_clock::now();
    const int series = static_cast<int>(machineFigures(random).size());
    for (std::int64_t day = 1; day <= days; ++day) {
        for (const std::int64_t end = kStart + day * kDayMs; now < end; now += 20'000)
            writer.record(machineFigures(random));
        if (day % 30 == 0 || day == days)
            std::printf("day %3lld: %6.2f MB\n", static_cast<long long>(day),
                        static_cast<double>(fileSize(path)) / 1e6);
    }
    writer.finish();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("%d series, %d days: %lld minute writes in %.1f s, file %.2f MB (limit 30 MB)\n", series, days,
                static_cast<long long>(writer.writes()), seconds, static_cast<double>(fileSize(path)) / 1e6);
    const QList<SeriesHistory> week = writer.read(QStringLiteral("temp"), Resolution::Hour, 7 * 24 * 3600);
    std::printf("reading a week of hours of %lld temperature series: %lld rows\n", static_cast<long long>(week.size()),
                static_cast<long long>(week.isEmpty() ? 0 : week.front().buckets.size()));
    return 0;
}
