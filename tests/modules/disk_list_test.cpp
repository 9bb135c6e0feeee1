// Which disks the Disk module shows on a machine full of stacked and virtual block devices, and
// which disk each volume on them lies on; over a sysfs tree laid out as the kernel lays it out.
#include "collect/linux/linux_block_device_source.h"
#include "collect/load_system_information.h"
#include "modules/disk/disk_bar_width.h"
#include "storage_picture_defaults.h"

#include "support/fake_device_database.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;

// A workstation with snaps: 30 attached loop devices, LVM on a LUKS container on the NVMe
// disk's third partition, and an md mirror of sda1 and sdb1.
class SnapWorkstation {
public:
    SnapWorkstation()
    {
        fs::create_directories(root() / "proc");
        const fs::path pci = "devices/pci0000:00";
        disk(pci / "0000:00:1d.0/nvme/nvme0", "nvme0n1", 3);
        disk(pci / "0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/block", "sda", 1);
        disk(pci / "0000:00:17.0/ata2/host1/target1:0:0/1:0:0:0/block", "sdb", 1);
        for (int i = 0; i < 30; ++i) {
            const std::string name = "loop" + std::to_string(i);
            write(virtualDevice(name) / "loop/backing_file", "/var/lib/snapd/snaps/snap" + std::to_string(i) + ".snap");
        }
        stacked("dm-0", {"nvme0n1p3"}); // the LUKS container
        stacked("dm-1", {"dm-0"});      // the LVM volume in it
        stacked("md0", {"sdb1", "sda1"});
    }

    fs::path root() const { return dir_.path().toStdString(); }

    std::unique_ptr<LoadSystemInformation> collector() const
    {
        SourceSet sources;
        sources.blockDevices = std::make_unique<LinuxBlockDeviceSource>(SysRoot(root()));
        auto mounts = std::make_unique<Mounts>();
        mounts->table = {{"/", "/dev/mapper/vg-root", "ext4", "rw", 253, 1, "/"},
                         {"/srv/mirror", "/dev/md0", "ext4", "rw", 9, 0, "/"},
                         {"/snap/core22/1122", "/dev/loop3", "squashfs", "ro", 7, 3, "/"}};
        sources.mounts = std::move(mounts);
        // The mount table names links (/dev/mapper/...); the device manager knows the kernel's names.
        auto database = std::make_unique<FakeDeviceDatabase>();
        database->devices["253:1"].name = "dm-1";
        database->devices["9:0"].name = "md0";
        sources.deviceDatabase = std::move(database);
        return std::make_unique<LoadSystemInformation>(std::move(sources));
    }

private:
    struct Mounts final : MountSource {
        std::vector<MountRecord> table;
        std::optional<std::vector<MountRecord>> mounts() override { return table; }
        bool changed() override { return false; }
        std::optional<FileSystemSpace> space(const std::string&) override { return FileSystemSpace{1 << 30, 1 << 29}; }
    };

    void write(const fs::path& relative, const std::string& text) const
    {
        fs::create_directories((root() / relative).parent_path());
        std::ofstream(root() / relative) << text << '\n';
    }

    // The device's folder where the kernel keeps it, and its link in sys/block.
    fs::path device(const fs::path& parent, const std::string& name) const
    {
        const fs::path folder = "sys" / parent / name;
        write(folder / "size", "2097152");
        write(folder / "removable", "0");
        write(folder / "queue/rotational", "0");
        fs::create_directories(root() / "sys/block");
        fs::create_directory_symlink(".." / parent / name, root() / "sys/block" / name);
        diskstats_ += "   8       0 " + name + " 100 0 4096 0 50 0 2048 0 0 0 0\n";
        std::ofstream(root() / "proc/diskstats") << diskstats_;
        return folder;
    }

    fs::path virtualDevice(const std::string& name) const { return device("devices/virtual/block", name); }

    void disk(const fs::path& parent, const std::string& name, int partitions) const
    {
        const fs::path folder = device(parent, name);
        const std::string separator = name.starts_with("nvme") ? "p" : "";
        for (int p = 1; p <= partitions; ++p) {
            write(folder / (name + separator + std::to_string(p)) / "partition", std::to_string(p));
            write(folder / (name + separator + std::to_string(p)) / "size", "524288");
        }
    }

    // The kernel links each device a stacked one is built on under its slaves folder.
    void stacked(const std::string& name, const std::vector<std::string>& slaves) const
    {
        const fs::path folder = virtualDevice(name);
        fs::create_directories(root() / folder / "slaves");
        for (const std::string& slave : slaves)
            std::ofstream(root() / folder / "slaves" / slave) << "";
    }

    QTemporaryDir dir_;
    mutable std::string diskstats_;
};

std::vector<QString> setKeys(const std::vector<StorageBarSet>& sets)
{
    std::vector<QString> keys;
    for (const StorageBarSet& set : sets)
        keys.push_back(set.key);
    return keys;
}

} // namespace

TEST(DiskList, OnlyDisksWithHardwareGetSetsAndVolumesOnStackedDevicesLieOnThem)
{
    const SnapWorkstation machine;
    const auto collector = machine.collector();
    const VolumeUtilDetail util = collector->retVolumeUtilDetail();
    const VolumeBaseDict volumes = collector->retVolumeBase(util);
    // LVM on LUKS on nvme0n1p3 lies on the NVMe disk; the mirror on the first of its halves.
    EXPECT_EQ(volumes.at("/").topDisk, "nvme0n1");
    EXPECT_EQ(volumes.at("/srv/mirror").topDisk, "sda");

    const DiskBaseDict disks = collector->retDisAccessBase(util, volumes);
    ASSERT_EQ(disks.size(), 36u); // described all the same, for those who ask to see them
    EXPECT_TRUE(disks.at("/dev/loop29").isVirtual && disks.at("/dev/dm-1").isVirtual && disks.at("/dev/md0").isVirtual);

    ModuleDefaults defaults = diskPictureDefaults(true, false, false);
    EXPECT_EQ(setKeys(diskBarSets(diskPictureSettings(defaults), disks)),
              (std::vector<QString>{"/dev/nvme0n1", "/dev/sda", "/dev/sdb"}));
    defaults.set(PrefKey::Disk_ShowVirtualDisks, true);
    const std::vector<QString> all = setKeys(diskBarSets(diskPictureSettings(defaults), disks));
    EXPECT_EQ(all.size(), 36u);
    EXPECT_EQ(all.front(), "/dev/dm-0");
}
