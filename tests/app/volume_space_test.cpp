// A volume's figures on a file system with a large root reserve, against statvfs as df counts it.
#include "collect/linux/linux_mount_source.h"
#include "mount_test_support.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/statvfs.h>
#include <unistd.h>

TEST(VolumeSpace, AReserveForRootCountsNeitherAsUsedNorAsFree)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "mounting a file system needs root";
    QTemporaryDir dir;
    const QString image = dir.filePath(QStringLiteral("reserve.img"));
    const QString mountPoint = dir.filePath(QStringLiteral("mnt"));
    ASSERT_TRUE(QDir().mkpath(mountPoint));
    if (!runTool(QStringLiteral("truncate"), {QStringLiteral("-s"), QStringLiteral("16M"), image}) ||
        !runTool(QStringLiteral("mkfs.ext4"),
                 {QStringLiteral("-q"), QStringLiteral("-F"), QStringLiteral("-m"), QStringLiteral("50"), image}))
        GTEST_SKIP() << "cannot make an ext4 image";
    if (!runTool(QStringLiteral("mount"), {QStringLiteral("-o"), QStringLiteral("loop"), image, mountPoint}))
        GTEST_SKIP() << "no loop device to mount the image on";
    auto unmount = qScopeGuard([&] { runTool(QStringLiteral("umount"), {mountPoint}); });
    QFile filler(mountPoint + QStringLiteral("/filler"));
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly));
    filler.write(QByteArray(2 * 1024 * 1024, 'x'));
    filler.close();
    ::sync();

    struct statvfs info {};
    ASSERT_EQ(::statvfs(QFile::encodeName(mountPoint).constData(), &info), 0);
    const std::uint64_t unit = info.f_frsize;
    const std::uint64_t used = (info.f_blocks - info.f_bfree) * unit;
    const std::uint64_t available = info.f_bavail * unit;
    ASSERT_GT(info.f_bfree - info.f_bavail, info.f_blocks / 3) << "the reserve did not take";

    LinuxMountSource source{SysRoot("/")};
    const std::optional<FileSystemSpace> space = source.space(mountPoint.toStdString());
    ASSERT_TRUE(space.has_value());
    EXPECT_EQ(space->availableBytes, available);
    EXPECT_EQ(space->totalBytes - space->availableBytes, used);
    // df's share, not the reserve's: about 2 MiB of a few MiB, far from the half the reserve takes.
    EXPECT_LT(static_cast<double>(used) / static_cast<double>(space->totalBytes), 0.5);
}
