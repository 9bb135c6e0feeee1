// A kernel file whose text is turned down: no figures, and one warning naming the file, the
// reason and the offending line, however often it is read.
#include "collect/linux/linux_block_device_source.h"
#include "collect/linux/linux_cpu_source.h"
#include "collect/linux/linux_memory_source.h"
#include "collect/linux/linux_network_source.h"
#include "collect/linux/linux_process_source.h"

#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>

namespace {
struct BrokenFile {
    const char* file; // under the tree's root
    const char* text;
    std::function<bool(const SysRoot&)> readsSomething;
    const char* warning; // after the file's path
};

QStringList captured;

void capture(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtWarningMsg && QLatin1String(context.category) == QLatin1String("tarvel.collect"))
        captured << message;
}

const BrokenFile kBroken[] = {
    {"proc/stat", "intr 5\nctxt 9\n",
     [](const SysRoot& r) { return LinuxCpuSource(r).readProcessorTicks().has_value(); },
     ": no per-processor \"cpuN\" line at line 1: \"intr 5\""},
    {"proc/loadavg", "0.02 x 0.05 1/2 3\n",
     [](const SysRoot& r) { return LinuxCpuSource(r).loadAverages().has_value(); },
     ": three load averages expected at line 1: \"0.02 x 0.05 1/2 3\""},
    {"proc/meminfo", "MemTotal: lots kB\n",
     [](const SysRoot& r) { return LinuxMemorySource(r).memoryCounters().has_value(); },
     ": no memory figure at line 1: \"MemTotal: lots kB\""},
    {"proc/swaps", "/dev/sda2 partition 10 0 -2\n",
     [](const SysRoot& r) { return LinuxMemorySource(r).swapAreas().has_value(); },
     ": header \"Filename Type Size Used Priority\" expected at line 1: \"/dev/sda2 partition 10 0 -2\""},
    {"proc/net/dev", "Inter-|\n face |\neth0: 1 2 3\n",
     [](const SysRoot& r) { return LinuxNetworkSource(r).counters().has_value(); },
     ": no interface row with ten counters at line 3: \"eth0: 1 2 3\""},
    {"proc/diskstats", "", [](const SysRoot& r) { return LinuxBlockDeviceSource(r).diskStatistics().has_value(); },
     ": no row of major, minor, name and eleven counters"},
};
} // namespace

TEST(RejectedFile, SkipsTheFiguresAndWarnsOncePerFile)
{
    for (const BrokenFile& broken : kBroken) {
        SCOPED_TRACE(broken.file);
        QTemporaryDir dir;
        ASSERT_TRUE(dir.isValid());
        const std::filesystem::path root = dir.path().toStdString();
        const std::filesystem::path path = root / broken.file;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << broken.text;

        captured.clear();
        const QtMessageHandler previous = qInstallMessageHandler(capture);
        const bool first = broken.readsSomething(SysRoot(root));
        const bool second = broken.readsSomething(SysRoot(root)); // a new reader, the same file
        qInstallMessageHandler(previous);

        EXPECT_FALSE(first);
        EXPECT_FALSE(second);
        EXPECT_EQ(captured, QStringList{QString::fromStdString(path.string()) + QString::fromUtf8(broken.warning)});
    }
}
