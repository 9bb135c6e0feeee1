// The collector's volume side: the disk size map, the mounted volumes and their space.
#include "collect/load_system_information.h"

#include "collect/block_device_tree.h"
#include "collect/volume_filter.h"

#include <algorithm>
#include <limits>

namespace {
std::int64_t clampedBytes(std::uint64_t bytes)
{
    return static_cast<std::int64_t>(std::min<std::uint64_t>(bytes, std::numeric_limits<std::int64_t>::max()));
}

// The label when the file system has one, else the mount point's last component; "/" has
// none, so it takes the machine's name. Empty for a root without a host name: what to call it
// then is the menus' word.
std::optional<QString> volumeDisplayName(const std::string& mountPoint, const std::optional<std::string>& label,
                                         MachineSource* machine)
{
    if (label)
        return QString::fromStdString(*label);
    const std::size_t slash = mountPoint.find_last_of('/');
    const std::string last = slash == std::string::npos ? mountPoint : mountPoint.substr(slash + 1);
    if (!last.empty())
        return QString::fromStdString(last);
    if (const auto host = machine ? machine->hostName() : std::nullopt; host && !host->empty())
        return QString::fromStdString(*host);
    return std::nullopt;
}

bool underRemovableMediaFolder(const std::string& mountPoint)
{
    return mountPoint.starts_with("/media/") || mountPoint.starts_with("/run/media/");
}
} // namespace

VolumeUtilDetail LoadSystemInformation::retVolumeUtilDetail()
{
    VolumeUtilDetail util;
    const auto devices = sources_.blockDevices ? sources_.blockDevices->devices() : std::nullopt;
    if (!devices)
        return util;
    for (const BlockDevice& device : *devices) {
        if (!device.sectors || *device.sectors == 0)
            continue;
        const QString disk = QString::fromStdString(device.name);
        util.allDriveSize[disk] = clampedBytes(*device.sectors * 512);
        // A volume on a stacked device (LVM, an encrypted container, an md mirror) lies on the
        // disk beneath it, which is the one the Disk module shows.
        const auto beneath = device.isVirtual ? underlyingDisk(*devices, device.name) : std::nullopt;
        const QString top = beneath ? QString::fromStdString(*beneath) : disk;
        if (beneath)
            util.parDisksTops[disk] = top;
        for (const BlockPartition& partition : device.partitions)
            if (!partition.name.empty())
                util.parDisksTops[QString::fromStdString(partition.name)] = top;
    }
    return util;
}

VolumeBaseDict LoadSystemInformation::retVolumeBase(const VolumeUtilDetail& util)
{
    VolumeBaseDict base;
    MountSource* mounts = sources_.mounts.get();
    const auto table = mounts ? mounts->mounts() : std::nullopt;
    if (!table)
        return base;
    std::map<QString, bool> removableDisks;
    if (const auto devices = sources_.blockDevices ? sources_.blockDevices->devices() : std::nullopt)
        for (const BlockDevice& device : *devices)
            removableDisks[QString::fromStdString(device.name)] = device.removable.value_or(false);
    DeviceDatabaseSource* database = sources_.deviceDatabase.get();

    for (const MountRecord& mount : selectVolumeMounts(*table)) {
        const auto space = mounts->space(mount.mountPoint);
        if (!space || space->totalBytes == 0)
            continue;
        VolumeBaseEntry entry;
        entry.isNetworkVol = isNetworkFileSystem(mount.fsType);
        std::optional<DeviceProperties> device;
        if (entry.isNetworkVol) {
            entry.bsdName = QString::fromStdString(networkShareName(mount.source));
        } else {
            entry.bsdPath = QString::fromStdString(mount.source);
            entry.bsdName = QString(entry.bsdPath).remove(QStringLiteral("/dev/"));
            if (database)
                device = database->blockDevice(mount.major, mount.minor);
        }
        // The kernel's name finds the disk even when the table names a link (/dev/mapper/...).
        const QString kernelName =
            device && !device->name.empty() ? QString::fromStdString(device->name) : entry.bsdName;
        QString disk;
        if (const auto top = util.parDisksTops.find(kernelName); top != util.parDisksTops.end())
            disk = entry.topDisk = top->second;
        else if (util.allDriveSize.contains(kernelName))
            disk = kernelName; // a file system on the whole disk, as sticks often have
        // USB disks often call themselves fixed; the bus they hang on says otherwise.
        const auto flag = removableDisks.find(disk);
        entry.isRemovable =
            !entry.isNetworkVol && ((flag != removableDisks.end() && flag->second) || (device && device->bus == "usb"));

        const auto name =
            volumeDisplayName(mount.mountPoint, device ? device->fsLabel : std::nullopt, sources_.machine.get());
        entry.volumeName = name.value_or(QString());
        entry.isUnnamedRoot = !name;
        entry.totalSize = clampedBytes(space->totalBytes);
        entry.fileType = QString::fromStdString(mount.fsType);
        entry.isWritable = !mountedReadOnly(mount.options);
        entry.isUnmountable = entry.isRemovable || underRemovableMediaFolder(mount.mountPoint);
        entry.iconKind = entry.isNetworkVol    ? VolumeIconKind::Network
                         : entry.isUnmountable ? VolumeIconKind::External
                                               : VolumeIconKind::Internal;
        base[QString::fromStdString(mount.mountPoint)] = std::move(entry);
    }
    return base;
}

VolumeSample LoadSystemInformation::retDiskUsage(const VolumeBaseDict& volumeBase)
{
    VolumeSample sample;
    if (volumeBase.empty())
        return sample;
    MountSource* mounts = sources_.mounts.get();
    std::uint64_t total = 0;
    std::uint64_t free = 0;
    for (const auto& [path, volume] : volumeBase) {
        VolumeUsage usage;
        usage.name = volume.volumeName;
        const auto space = mounts ? mounts->space(path.toStdString()) : std::nullopt;
        // A volume that cannot be measured, or reports no size, shows empty and adds nothing.
        if (space && space->totalBytes > 0) {
            const std::uint64_t available = std::min(space->availableBytes, space->totalBytes);
            usage.total = clampedBytes(space->totalBytes);
            usage.free = clampedBytes(available);
            usage.used = usage.total - usage.free;
            total += space->totalBytes;
            free += available;
        }
        sample.volumes.emplace(path, std::move(usage));
    }
    const std::int64_t allTotal = clampedBytes(total);
    const std::int64_t allFree = clampedBytes(free);
    sample.all = VolumeUsage{allTotal, allTotal - allFree, allFree, {}};
    return sample;
}
