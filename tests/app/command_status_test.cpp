// The sampling commands run as the built program: what they return when the monitor ends itself.
#include "program_run.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

void writeFile(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// eth0 is up, yet neither the interface table nor its own statistics give its counters: the
// collector can no longer trust the traffic figures and ends the monitor after its first cycle.
void writeTreeWithAnUnreadableActiveInterface(const QString& root)
{
    writeFile(root + "/proc/net/dev",
              "Inter-|   Receive                            |  Transmit\n"
              " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop "
              "fifo colls carrier compressed\n"
              "    lo:     100       1    0    0    0     0          0         0      100       1    0    0 "
              "   0     0       0          0\n");
    writeFile(root + "/sys/class/net/eth0/operstate", "up\n");
    writeFile(root + "/sys/class/net/eth0/type", "1\n");
    writeFile(root + "/sys/class/net/eth0/flags", "0x1003\n");
}

} // namespace

TEST(CommandStatus, SnapshotAndRenderThatEndBeforeTheirLastCycleSaySoAndFail)
{
    QTemporaryDir dir;
    writeTreeWithAnUnreadableActiveInterface(dir.filePath("tree"));
    const QStringList common{"--root", dir.filePath("tree"), "--settings", dir.filePath("settings.plist")};

    const ProgramRun snapshot = runTarvel(common + QStringList{"snapshot", "--cycles", "3"});
    EXPECT_EQ(snapshot.exitCode, 1);
    EXPECT_TRUE(snapshot.out.isEmpty()) << snapshot.out.constData();
    EXPECT_TRUE(snapshot.err.contains("eth0")) << snapshot.err.constData();
    EXPECT_TRUE(snapshot.err.contains("nothing was reported")) << snapshot.err.constData();

    const ProgramRun render = runTarvel(common + QStringList{"render", "--out", dir.filePath("out"), "--cycles", "3"});
    EXPECT_EQ(render.exitCode, 1);
    EXPECT_TRUE(render.err.contains("nothing was reported")) << render.err.constData();
}
