// The Disk and Volume drop-downs from fixed descriptions, their menu-bar words, and ejecting.
#include "modules/disk/disk_menu_controller.h"
#include "modules/disk/disk_menu_rows.h"
#include "modules/volume/volume_ejector.h"
#include "modules/volume/volume_menu_controller.h"
#include "modules/volume/volume_menu_rows.h"
#include "storage_picture_defaults.h"

#include <QDBusConnection>
#include <gtest/gtest.h>

TEST(DiskMenu, EachDiskShowsItsFactsRatesAndTotals)
{
    DiskBaseDict disks = twoDisks();
    DiskBaseEntry& sda = disks[QStringLiteral("/dev/sda")];
    sda.vendorName = QStringLiteral("ATA");
    sda.productName = QStringLiteral("WDC WD40EFRX");
    sda.productSerialNumber = QStringLiteral("WD-1234");
    sda.mediumType = QStringLiteral("Rotational");
    sda.mediumRotationRate = 5400;
    sda.totalSize = 4'000'787'030'016;
    DiskBaseEntry& nvme = disks[QStringLiteral("/dev/nvme0n1")];
    nvme.mediumType = QStringLiteral("Solid State");
    nvme.mediumRotationRate = 0; // solid-state disks report 0: nothing to say

    const auto history = historyOf<DiskSample>(
        {DiskSample{{{"/dev/sda", {1'000'000, 0}}}, 2}, DiskSample{{{"/dev/sda", {5'000'000, 3'000'000}}}, 2}});
    Disk_MenuController panel;
    panel.loadBaseData(diskSettings(true, false, false).pictures, disks);
    panel.replaceData(history);
    ASSERT_EQ(panel.rowCount(), 2);
    EXPECT_EQ(panel.rowText(0), QStringLiteral("nvme0n1\nSolid State\nRead 0.0B/s  Write 0.0B/s\n"));
    EXPECT_EQ(panel.rowText(1), QStringLiteral("sda  WDC WD40EFRX\nATA · Serial WD-1234 · Rotational · 5400 rpm · "
                                               "4.00TB\nRead 2.0MB/s  Write 1.5MB/s\nRead 5.0MB  Written 3.0MB"));

    const DiskPictureSettings each = diskSettings(true, false, false);
    EXPECT_EQ(diskBarText(diskBarSets(each, disks), disks, history),
              QStringLiteral("nvme0n1 read 0.0B/s  write 0.0B/s | sda read 2.0MB/s  write 1.5MB/s"));
    const DiskPictureSettings combined = diskSettings(true, false, false, false);
    EXPECT_EQ(diskBarText(diskBarSets(combined, disks), disks, history), QStringLiteral("read 2.0MB/s  write 1.5MB/s"));
}

TEST(VolumeMenu, EachVolumeShowsItsFileSystemUsedAndFree)
{
    VolumeBaseDict volumes = twoVolumes();
    volumes[QStringLiteral("/mnt/nas")] = volumeEntry("nas", "nas/Public", "", "cifs");
    VolumeSample sample;
    sample.volumes[QStringLiteral("/media/stick")] =
        VolumeUsage{3'000'000'000, 2'700'000'000, 300'000'000, QStringLiteral("STICK")};
    const auto history = historyOf<VolumeSample>({sample});

    Volume_MenuController panel;
    panel.loadBaseData(volumeSettings(1).pictures, volumes);
    panel.replaceData(history);
    ASSERT_EQ(panel.rowCount(), 3);
    EXPECT_EQ(panel.rowText(0), QStringLiteral("Root\next4 · /dev/vda1 · /\nNot measured yet"));
    EXPECT_EQ(panel.rowText(1), QStringLiteral("STICK\nvfat · /dev/sdb1 · /media/stick\n"
                                               "Used 2.7GB (90%) · Free 300.0MB · of 3.0GB"));
    EXPECT_EQ(panel.rowText(2), QStringLiteral("nas\ncifs · nas/Public · /mnt/nas · Read only\nNot measured yet"));

    EXPECT_EQ(volumeBarText(volumeBarSets(volumeSettings(1), volumes), volumes, history, VolumePercentKind::Free),
              QStringLiteral("Root -- | STICK 10% free | nas --"));
}

TEST(VolumeEjector, NamesUdisksObjectsAndSaysWhenTheServiceIsMissing)
{
    EXPECT_EQ(VolumeEjector::blockObjectPath(QStringLiteral("sdb1")),
              QStringLiteral("/org/freedesktop/UDisks2/block_devices/sdb1"));
    EXPECT_EQ(VolumeEjector::blockObjectPath(QStringLiteral("dm-0")),
              QStringLiteral("/org/freedesktop/UDisks2/block_devices/dm_2d0"));

    VolumeEjector ejector;
    ejector.setBus(QDBusConnection(QStringLiteral("no bus at all")));
    std::vector<std::pair<bool, QString>> outcomes;
    QObject::connect(
        &ejector, &VolumeEjector::finished,
        [&outcomes](const QString&, bool ejected, const QString& message) { outcomes.emplace_back(ejected, message); });
    ejector.eject(QStringLiteral("/media/stick"), twoVolumes().at(QStringLiteral("/media/stick")));
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_FALSE(outcomes[0].first);
    EXPECT_EQ(outcomes[0].second, VolumeEjector::unavailableMessage());
}
