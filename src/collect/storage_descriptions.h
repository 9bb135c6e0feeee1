// What the Disk and Volume modules know of the machine's storage between mounts and unmounts.
#pragma once

#include <QString>

#include <cstdint>
#include <map>
#include <optional>

// Which of the theme's volume pictures stands for a volume or a disk.
enum class VolumeIconKind { Internal, External, Network };

// The disk size map: whole disks with their sizes, and the disk each partition belongs to.
struct VolumeUtilDetail {
    std::map<QString, std::int64_t> allDriveSize; // kernel name of a whole disk -> bytes
    // Kernel name of a partition, or of a device stacked on disks (dm-0, md0) -> the disk
    // with hardware of its own beneath it.
    std::map<QString, QString> parDisksTops;
};

struct VolumeBaseEntry {
    QString bsdName; // device without "/dev/"; for a network volume its server and share
    bool isNetworkVol = false;
    QString volumeName;         // display name; empty when isUnnamedRoot
    bool isUnnamedRoot = false; // "/" with neither a label nor a host name: its users name it
    QString bsdPath;            // the mounted-from device; empty for a network volume
    std::int64_t totalSize = 0; // always greater than 0
    VolumeIconKind iconKind = VolumeIconKind::Internal;
    QString topDisk; // whole disk holding the partition; empty when not a known partition
    bool isRemovable = false;
    bool isWritable = false;
    bool isUnmountable = false;
    QString fileType;
};

// Keyed by mount point path; a later mount on the same path replaces an earlier one.
using VolumeBaseDict = std::map<QString, VolumeBaseEntry>;

struct DiskBaseEntry {
    QString bsdName;
    VolumeIconKind iconKind = VolumeIconKind::Internal;
    std::int64_t totalSize = 0; // 0 when the size map does not know the disk
    // Hardware facts, each present only when the device manager or the kernel knows it.
    std::optional<QString> vendorName;
    std::optional<QString> productName;
    std::optional<QString> productRevisionLevel;
    std::optional<QString> productSerialNumber;
    std::optional<QString> mediumType; // "Solid State" or "Rotational"
    std::optional<std::int64_t> mediumRotationRate;
    // No hardware of its own (loop, device-mapper, md, zram): its transfers already count on
    // the disks beneath it, so it is shown only on request.
    bool isVirtual = false;
};

// Keyed by "/dev/" + kernel name, as the Disk sample is.
using DiskBaseDict = std::map<QString, DiskBaseEntry>;
