// The disk and volume collectors: which mounts are volumes, what each description says, and
// the sample rules, over our own storage tree (with fed sizes) and the captured shared tree.
#include "collect/linux/linux_block_device_source.h"
#include "collect/linux/linux_memory_source.h"
#include "collect/linux/linux_mount_source.h"
#include "collect/linux/udev_device_database.h"
#include "collect/load_system_information.h"
#include "collect/volume_filter.h"

#include "support/fake_device_database.h"
#include "support/fixture_paths.h"

#include <gtest/gtest.h>

#include <map>

namespace {

// The mount table of a tree, with sizes fed by the test instead of asked of the file systems.
class FixtureMounts final : public MountSource {
public:
    explicit FixtureMounts(const SysRoot& root)
        : table_(root)
    {}
    std::optional<std::vector<MountRecord>> mounts() override { return table_.mounts(); }
    bool changed() override { return false; }
    std::optional<FileSystemSpace> space(const std::string& mountPoint) override
    {
        const auto size = sizes.find(mountPoint);
        return size != sizes.end() ? std::optional(size->second) : std::nullopt;
    }
    std::map<std::string, FileSystemSpace> sizes;

private:
    LinuxMountSource table_;
};

constexpr std::int64_t kGiB = 1024ll * 1024 * 1024;

// A laptop with an NVMe disk, a USB stick, network shares and the usual pseudo mounts.
struct StorageMachine {
    FixtureMounts* mounts = nullptr;
    std::unique_ptr<LoadSystemInformation> info;

    StorageMachine()
    {
        const SysRoot root(projectFixtures() / "linux" / "storage-machine");
        SourceSet sources;
        sources.blockDevices = std::make_unique<LinuxBlockDeviceSource>(root);
        sources.memory = std::make_unique<LinuxMemorySource>(root);
        auto table = std::make_unique<FixtureMounts>(root);
        mounts = table.get();
        for (const char* path : {"/", "/boot/efi", "/srv/projects", "/media/user/My Stick", "/mnt/nas", "/mnt/public",
                                 "/home/user/remote", "/mnt/backup", "/run", "/snap/core22/1122"})
            mounts->sizes[path] = {100 * kGiB, 40 * kGiB};
        mounts->sizes["/mnt/image"] = {0, 0};
        sources.mounts = std::move(table);
        auto database = std::make_unique<FakeDeviceDatabase>();
        database->devices["259:1"].fsLabel = "ESP";
        database->devices["8:49"].bus = "usb";
        database->devices["nvme0n1"].model = "Samsung SSD 980 PRO 1TB";
        database->devices["sdb"].vendor = "SanDisk";
        database->devices["sdb"].rotationRate = 0;
        sources.deviceDatabase = std::move(database);
        info = std::make_unique<LoadSystemInformation>(std::move(sources));
    }
};

std::vector<QString> keys(const auto& map)
{
    std::vector<QString> list;
    for (const auto& entry : map)
        list.push_back(entry.first);
    return list;
}

} // namespace

TEST(VolumeBase, RealVolumesOnlyWithTheirNamesDisksAndFlags)
{
    StorageMachine machine;
    const VolumeBaseDict base = machine.info->retVolumeBase(machine.info->retVolumeUtilDetail());
    // Not listed: pseudo and container file systems, the snap image, the bind mount of "/" at
    // /srv/projects, the gvfs bridge, and the image that reports no size.
    EXPECT_EQ(keys(base), (std::vector<QString>{"/", "/boot/efi", "/home/user/remote", "/media/user/My Stick",
                                                "/mnt/backup", "/mnt/nas", "/mnt/public"}));

    // "/" has no label and no last component, and this machine no name: the menus name it.
    EXPECT_TRUE(base.at("/").isUnnamedRoot);
    EXPECT_EQ(base.at("/").volumeName, "");
    EXPECT_FALSE(base.at("/boot/efi").isUnnamedRoot);
    EXPECT_EQ(base.at("/").topDisk, "nvme0n1");
    EXPECT_EQ(base.at("/").iconKind, VolumeIconKind::Internal);
    EXPECT_EQ(base.at("/boot/efi").volumeName, "ESP");

    // Without a label, the decoded last component of the mount point.
    const VolumeBaseEntry& stick = base.at("/media/user/My Stick");
    EXPECT_EQ(stick.volumeName, "My Stick");
    EXPECT_EQ(stick.bsdName, "sdb1");
    EXPECT_EQ(stick.topDisk, "sdb");
    EXPECT_TRUE(stick.isRemovable && stick.isUnmountable && stick.isWritable);
    EXPECT_EQ(stick.iconKind, VolumeIconKind::External);

    // The later of two mounts on one path shows; the kernel calls its disk fixed, the device
    // manager knows it hangs on USB.
    const VolumeBaseEntry& backup = base.at("/mnt/backup");
    EXPECT_EQ(backup.bsdName, "sdd1");
    EXPECT_FALSE(backup.isWritable);
    EXPECT_TRUE(backup.isRemovable);

    const VolumeBaseEntry& nas = base.at("/mnt/nas");
    EXPECT_TRUE(nas.isNetworkVol && !nas.isRemovable);
    EXPECT_EQ(nas.bsdName, "nas.local:/export/media");
    EXPECT_TRUE(nas.bsdPath.isEmpty());
    EXPECT_EQ(nas.iconKind, VolumeIconKind::Network);
    EXPECT_EQ(base.at("/mnt/public").bsdName, "fileserver/Public Docs");
    EXPECT_TRUE(base.at("/home/user/remote").isNetworkVol);
}

TEST(DiskBase, DevicesThatHoldSomethingWithSizesIconsAndHardware)
{
    StorageMachine machine;
    const VolumeUtilDetail util = machine.info->retVolumeUtilDetail();
    EXPECT_EQ(util.allDriveSize.at("nvme0n1"), 1953525168ll * 512);
    EXPECT_EQ(util.parDisksTops.at("nvme0n1p2"), "nvme0n1");
    EXPECT_FALSE(util.allDriveSize.contains("sr0")); // no medium

    const DiskBaseDict disks = machine.info->retDisAccessBase(util, machine.info->retVolumeBase(util));
    // Not listed: the empty drive, the unattached loop device, the memory disk that is not swap.
    EXPECT_EQ(keys(disks), (std::vector<QString>{"/dev/loop2", "/dev/nvme0n1", "/dev/sdb", "/dev/zram1"}));
    const DiskBaseEntry& nvme = disks.at("/dev/nvme0n1");
    EXPECT_EQ(nvme.totalSize, 1953525168ll * 512);
    EXPECT_EQ(nvme.productName, "Samsung SSD 980 PRO 1TB");
    EXPECT_FALSE(nvme.vendorName);
    EXPECT_EQ(nvme.mediumType, "Solid State");
    // The stick's disk looks like its volume; a disk without a listed volume looks like "/".
    const DiskBaseEntry& stick = disks.at("/dev/sdb");
    EXPECT_EQ(stick.iconKind, VolumeIconKind::External);
    EXPECT_EQ(stick.mediumType, "Rotational");
    EXPECT_EQ(stick.mediumRotationRate, 0);
    EXPECT_EQ(disks.at("/dev/loop2").iconKind, VolumeIconKind::Internal);
    // Filed by the kernel among the devices without hardware: shown only on request.
    EXPECT_TRUE(disks.at("/dev/loop2").isVirtual && disks.at("/dev/zram1").isVirtual);
    EXPECT_FALSE(nvme.isVirtual || stick.isVirtual);

    // The narrow rule for names of the other system's form.
    EXPECT_EQ(LoadSystemInformation::retDiskName("disk0s2"), "disk0");
    EXPECT_EQ(LoadSystemInformation::retDiskName("disk1s10"), "disk1s10");
    EXPECT_EQ(LoadSystemInformation::retDiskName("ab"), "-");
}

TEST(VolumeSample, UnmeasurableAndEmptyVolumesShowZeroAndAddNothingToAll)
{
    StorageMachine machine;
    const VolumeBaseDict base = machine.info->retVolumeBase(machine.info->retVolumeUtilDetail());
    machine.mounts->sizes["/mnt/nas"] = {0, 0};            // the share now reports nothing
    machine.mounts->sizes.erase("/mnt/public");            // and this one cannot be asked at all
    machine.mounts->sizes["/"] = {100 * kGiB, 130 * kGiB}; // more free than size: capped
    const VolumeSample sample = machine.info->retDiskUsage(base);

    ASSERT_EQ(sample.volumes.size(), base.size());
    EXPECT_EQ(sample.volumes.at("/mnt/nas"), (VolumeUsage{0, 0, 0, "nas"}));
    EXPECT_EQ(sample.volumes.at("/mnt/public").total, 0);
    EXPECT_EQ(sample.volumes.at("/media/user/My Stick"), (VolumeUsage{100 * kGiB, 60 * kGiB, 40 * kGiB, "My Stick"}));
    // Five measured volumes: "/" all free, four with 40 GiB free.
    EXPECT_EQ(sample.all, (VolumeUsage{500 * kGiB, 240 * kGiB, 260 * kGiB, {}}));

    const VolumeSample none = machine.info->retDiskUsage({});
    EXPECT_TRUE(none.volumes.empty());
    EXPECT_FALSE(none.all);
}

TEST(DiskSample, WholeDisksOnlyInBytesWithTheInterval)
{
    StorageMachine machine;
    const auto sample = machine.info->retDiskRW(2.0);
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->interval, 2.0);
    EXPECT_EQ(keys(sample->devices), (std::vector<QString>{"/dev/loop0", "/dev/loop2", "/dev/nvme0n1", "/dev/sdb",
                                                           "/dev/sr0", "/dev/zram0", "/dev/zram1"}));
    EXPECT_EQ(sample->devices.at("/dev/nvme0n1"), (DiskCounters{11939458ull * 512, 22108456ull * 512}));
    // The second tick goes by the names it already knows.
    EXPECT_EQ(machine.info->retDiskRW(2.0)->devices, sample->devices);
}

TEST(StorageText, ShareNamesUdevEscapesAndReadOnlyOptions)
{
    EXPECT_EQ(networkShareName("//guest;AUTH=x@nas/Public%20Docs"), "guestx@nas/Public Docs");
    EXPECT_EQ(decodeUdevEscapes("My\\x20Stick\\x2"), "My Stick\\x2");
    EXPECT_TRUE(mountedReadOnly("nosuid,ro"));
    EXPECT_FALSE(mountedReadOnly("rw,errors=remount-ro"));
}

TEST(SharedTreeStorage, VolumesOfACapturedTableAndDiskBytesOfEveryRowLength)
{
    if (sharedProcfsTree().empty())
        GTEST_SKIP() << "the shared captured procfs tree is not present";
    const SysRoot root(sharedProcfsTree());
    LinuxMountSource table(root, "proc/26231/mountinfo");
    std::vector<std::string> points;
    for (const MountRecord& mount : selectVolumeMounts(table.mounts().value_or(std::vector<MountRecord>{})))
        points.push_back(mount.mountPoint + " " + mount.fsType);
    // /mnt/nfs/test is mounted three times; the last (NFS version 3) is on top.
    EXPECT_EQ(points,
              (std::vector<std::string>{"/ ext4", "/mnt/nfs/test nfs", "/var/lib/containers/storage/overlay xfs"}));

    SourceSet sources;
    sources.blockDevices = std::make_unique<LinuxBlockDeviceSource>(root);
    LoadSystemInformation info(std::move(sources));
    const auto sample = info.retDiskRW(1.0);
    ASSERT_TRUE(sample);
    // Rows of 14 (sda), 18 (sdb) and 20 fields (sdc); partitions and unlisted devices left out.
    EXPECT_EQ(sample->devices.at("/dev/sda"), (DiskCounters{1003346126ull * 512, 505697032ull * 512}));
    EXPECT_EQ(sample->devices.at("/dev/sdb"), (DiskCounters{9657779ull * 512, 1972905ull * 512}));
    EXPECT_EQ(sample->devices.at("/dev/sdc"), (DiskCounters{579164ull * 512, 180500ull * 512}));
    EXPECT_FALSE(sample->devices.contains("/dev/sda1") || sample->devices.contains("/dev/ram0"));
}
