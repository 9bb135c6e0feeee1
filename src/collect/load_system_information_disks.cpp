// The collector's disk side: the block devices worth showing and their read/write counters.
#include "collect/load_system_information.h"

#include <algorithm>
#include <limits>
#include <set>

namespace {
constexpr std::uint64_t kSectorBytes = 512;

std::optional<QString> nonEmpty(const std::optional<std::string>& text)
{
    if (!text || text->empty())
        return std::nullopt;
    return QString::fromStdString(*text);
}

// Devices that count I/O but hold nothing of the user's: an unattached loop device, and a
// compressed memory disk unless it serves as swap.
bool unused(const BlockDevice& device, const std::set<std::string>& swapDevices)
{
    if (device.name.starts_with("loop") && !device.backingFile)
        return true;
    return device.name.starts_with("zram") && !swapDevices.contains("/dev/" + device.name);
}
} // namespace

QString LoadSystemInformation::retDiskName(const QString& bsdName)
{
    if (bsdName.size() < 3)
        return QStringLiteral("-");
    if (bsdName.at(bsdName.size() - 2) == QLatin1Char('s'))
        return bsdName.left(bsdName.size() - 2);
    return bsdName;
}

DiskBaseDict LoadSystemInformation::retDisAccessBase(const VolumeUtilDetail& util, const VolumeBaseDict& volumeBase)
{
    DiskBaseDict base;
    const auto devices = sources_.blockDevices ? sources_.blockDevices->devices() : std::nullopt;
    const auto statistics = sources_.blockDevices ? sources_.blockDevices->diskStatistics() : std::nullopt;
    if (!devices || !statistics)
        return base;

    // A disk looks like the first volume met on it, or like "/" when none is known.
    std::map<QString, VolumeIconKind> icons;
    for (const auto& [path, volume] : volumeBase) {
        if (volume.bsdPath.isEmpty())
            continue;
        icons.try_emplace(volume.topDisk.isEmpty() ? retDiskName(volume.bsdName) : volume.topDisk, volume.iconKind);
        icons.try_emplace(volume.bsdName, volume.iconKind);
    }
    const auto root = volumeBase.find(QStringLiteral("/"));
    const VolumeIconKind defaultIcon = root != volumeBase.end() ? root->second.iconKind : VolumeIconKind::Internal;

    std::set<std::string> counted;
    for (const DiskStatistics& row : *statistics)
        counted.insert(row.name);
    std::set<std::string> swapDevices;
    if (const auto swaps = sources_.memory ? sources_.memory->swapAreas() : std::nullopt)
        for (const SwapArea& area : *swaps)
            swapDevices.insert(area.filename);
    DeviceDatabaseSource* database = sources_.deviceDatabase.get();

    for (const BlockDevice& device : *devices) {
        // Size 0: no medium in the drive, nothing to read.
        if (!counted.contains(device.name) || !device.sectors || *device.sectors == 0 || unused(device, swapDevices))
            continue;
        DiskBaseEntry entry;
        entry.bsdName = QString::fromStdString(device.name);
        const auto icon = icons.find(entry.bsdName);
        entry.iconKind = icon != icons.end() ? icon->second : defaultIcon;
        const auto size = util.allDriveSize.find(entry.bsdName);
        entry.totalSize = size != util.allDriveSize.end() ? size->second : 0;
        if (const auto facts = database ? database->blockDevice(device.name) : std::nullopt) {
            entry.vendorName = nonEmpty(facts->vendor);
            entry.productName = nonEmpty(facts->model);
            entry.productRevisionLevel = nonEmpty(facts->revision);
            entry.productSerialNumber = nonEmpty(facts->serial);
            entry.mediumRotationRate = facts->rotationRate;
        }
        entry.isVirtual = device.isVirtual;
        if (device.rotational)
            entry.mediumType = *device.rotational ? QStringLiteral("Rotational") : QStringLiteral("Solid State");
        base[QStringLiteral("/dev/") + entry.bsdName] = std::move(entry);
    }
    return base;
}

std::optional<DiskSample> LoadSystemInformation::retDiskRW(double interval)
{
    const auto statistics = sources_.blockDevices ? sources_.blockDevices->diskStatistics() : std::nullopt;
    if (!statistics)
        return std::nullopt;
    const std::lock_guard guard(diskLock);
    // Partitions would count their disk's transfers twice; which names are whole disks is
    // asked of sysfs only when a name not met before shows up.
    const bool unknownName = std::any_of(statistics->begin(), statistics->end(),
                                         [this](const DiskStatistics& row) { return !diskKeys.contains(row.name); });
    if (const auto devices = unknownName ? sources_.blockDevices->devices() : std::nullopt) {
        std::set<std::string> wholeDisks;
        for (const BlockDevice& device : *devices)
            wholeDisks.insert(device.name);
        for (const DiskStatistics& row : *statistics) {
            if (diskKeys.contains(row.name))
                continue;
            diskKeys[row.name] =
                wholeDisks.contains(row.name)
                    ? std::optional<QString>(QStringLiteral("/dev/") + QString::fromStdString(row.name))
                    : std::nullopt;
        }
    }

    DiskSample sample;
    sample.interval = interval;
    for (const DiskStatistics& row : *statistics) {
        const auto key = diskKeys.find(row.name);
        if (key != diskKeys.end() && key->second)
            sample.devices[*key->second] = {row.sectorsRead * kSectorBytes, row.sectorsWritten * kSectorBytes};
    }
    return sample;
}
