// The descriptions follow a real mount and unmount through the watch on the mount table, and
// loop devices attached and detached through the devices' own events.
#include "app/volume_tracker.h"
#include "collect/load_system_information.h"
#include "mount_test_support.h"
#include "prefs/pref_keys.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

TEST(VolumeTracker, LoopMountIsAddedAndRemovedAsTheTableChanges)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "mounting a file system needs root";
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString image = dir.filePath(QStringLiteral("volume.img"));
    const QString mountPoint = dir.filePath(QStringLiteral("mnt"));
    ASSERT_TRUE(QDir().mkpath(mountPoint));
    if (!runTool(QStringLiteral("truncate"), {QStringLiteral("-s"), QStringLiteral("8M"), image}) ||
        !runTool(QStringLiteral("mkfs.ext4"), {QStringLiteral("-q"), QStringLiteral("-F"), image}))
        GTEST_SKIP() << "cannot make an ext4 image";

    LoadSystemInformation loadInfo(makeSourceSet("/"));
    ModuleDefaults general;
    general.set(PrefKey::LaunchVolume, true);
    general.set(PrefKey::LaunchDisk, true);
    VolumeTracker tracker(loadInfo, general);
    tracker.startWatching();
    tracker.collectDskVolDetail();
    ASSERT_FALSE(tracker.volumeBaseDict().contains(mountPoint));
    QSignalSpy rebuilt(&tracker, &VolumeTracker::descriptionsChanged);

    if (!runTool(QStringLiteral("mount"), {QStringLiteral("-o"), QStringLiteral("loop"), image, mountPoint}))
        GTEST_SKIP() << "no loop device to mount the image on";
    auto unmount = qScopeGuard([&] { runTool(QStringLiteral("umount"), {mountPoint}); });

    ASSERT_TRUE(waitForRebuilds(rebuilt, [&] { return tracker.volumeBaseDict().contains(mountPoint); }));
    const VolumeBaseEntry& volume = tracker.volumeBaseDict().at(mountPoint);
    EXPECT_EQ(volume.fileType, "ext4");
    EXPECT_TRUE(volume.bsdPath.startsWith("/dev/loop"));
    EXPECT_GT(volume.totalSize, 0);
    EXPECT_TRUE(tracker.diskBaseDict().contains(QStringLiteral("/dev/") + volume.bsdName));
    const VolumeSample sample = loadInfo.retDiskUsage(*tracker.sharedVolumeBaseDict());
    EXPECT_GT(sample.volumes.at(mountPoint).free, 0);

    unmount.dismiss();
    ASSERT_TRUE(runTool(QStringLiteral("umount"), {mountPoint}));
    EXPECT_TRUE(waitForRebuilds(rebuilt, [&] { return !tracker.volumeBaseDict().contains(mountPoint); }));
}

TEST(VolumeTracker, ALoopDeviceDetachedWithoutAnyMountLeavesTheDiskList)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "attaching a loop device needs root";
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString image = dir.filePath(QStringLiteral("disk.img"));
    ASSERT_TRUE(runTool(QStringLiteral("truncate"), {QStringLiteral("-s"), QStringLiteral("4M"), image}));

    LoadSystemInformation loadInfo(makeSourceSet("/"));
    ModuleDefaults general;
    general.set(PrefKey::LaunchDisk, true);
    VolumeTracker tracker(loadInfo, general);
    tracker.startWatching();
    tracker.collectDskVolDetail();
    QSignalSpy rebuilt(&tracker, &VolumeTracker::descriptionsChanged);

    QProcess attach;
    attach.start(QStringLiteral("losetup"), {QStringLiteral("--find"), QStringLiteral("--show"), image});
    if (!attach.waitForFinished(30000) || attach.exitCode() != 0)
        GTEST_SKIP() << "no loop device to attach the image to";
    const QString device = QString::fromUtf8(attach.readAllStandardOutput()).trimmed();
    auto detach = qScopeGuard([&] { runTool(QStringLiteral("losetup"), {QStringLiteral("-d"), device}); });

    // Neither comes with a change of the mount table: only the devices' own events tell.
    ASSERT_TRUE(waitForRebuilds(rebuilt, [&] { return tracker.diskBaseDict().contains(device); }));
    detach.dismiss();
    ASSERT_TRUE(runTool(QStringLiteral("losetup"), {QStringLiteral("-d"), device}));
    EXPECT_TRUE(waitForRebuilds(rebuilt, [&] { return !tracker.diskBaseDict().contains(device); }));
}
