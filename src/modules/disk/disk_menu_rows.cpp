// Texts of the Disk drop-down and of the terminal's Disk line.
#include "modules/disk/disk_menu_rows.h"

#include "modules/disk/disk_rates.h"
#include "toolkit/localization.h"
#include "toolkit/value_format.h"

#include <QStringList>

#include <algorithm>
#include <limits>

namespace {

QString rate(double bytesPerSecond)
{
    return TvlClasses::calcDiscAccessPerSec(static_cast<qint64>(bytesPerSecond));
}

qint64 clampedBytes(std::uint64_t bytes)
{
    return static_cast<qint64>(std::min<std::uint64_t>(bytes, std::numeric_limits<qint64>::max()));
}

} // namespace

QString diskTitleText(const DiskBaseEntry& disk)
{
    if (!disk.productName)
        return disk.bsdName;
    return disk.bsdName + QStringLiteral("  ") + *disk.productName;
}

QString diskFactsText(const DiskBaseEntry& disk)
{
    QStringList facts;
    if (disk.vendorName)
        facts << *disk.vendorName;
    if (disk.productRevisionLevel)
        facts << Tarvel::localized("Revision") + QLatin1Char(' ') + *disk.productRevisionLevel;
    if (disk.productSerialNumber)
        facts << Tarvel::localized("Serial") + QLatin1Char(' ') + *disk.productSerialNumber;
    if (disk.mediumType)
        facts << Tarvel::localized(disk.mediumType->toUtf8().constData());
    // Solid-state disks report a rotation rate of 0: there is nothing to say then.
    if (disk.mediumRotationRate && *disk.mediumRotationRate > 0)
        facts << QStringLiteral("%1 rpm").arg(*disk.mediumRotationRate);
    if (disk.totalSize > 0)
        facts << TvlClasses::calcDiskSize(disk.totalSize);
    return facts.join(QStringLiteral(" · "));
}

QString diskRatesText(const History<DiskSample>& history, const QString& key)
{
    const DiskRates rates = newestDiskRates(history, key);
    return Tarvel::localized("Read") + QLatin1Char(' ') + rate(rates.read) + QStringLiteral("  ") + Tarvel::localized("Write") +
           QLatin1Char(' ') + rate(rates.write);
}

QString diskTotalsText(const History<DiskSample>& history, const QString& key)
{
    if (history.empty())
        return {};
    const auto device = history.back().devices.find(key);
    if (device == history.back().devices.end())
        return {};
    return Tarvel::localized("Read") + QLatin1Char(' ') + TvlClasses::calcDiskSize(clampedBytes(device->second[0])) +
           QStringLiteral("  ") + Tarvel::localized("Written") + QLatin1Char(' ') +
           TvlClasses::calcDiskSize(clampedBytes(device->second[1]));
}

QString diskBarText(const std::vector<StorageBarSet>& sets, const DiskBaseDict& diskBaseDict,
                    const History<DiskSample>& history)
{
    QStringList parts;
    for (const StorageBarSet& set : sets) {
        const DiskRates rates = newestDiskRates(history, set.key);
        QString part = QStringLiteral("read ") + rate(rates.read) + QStringLiteral("  write ") + rate(rates.write);
        if (const auto disk = diskBaseDict.find(set.key); disk != diskBaseDict.end())
            part.prepend(disk->second.bsdName + QLatin1Char(' '));
        parts << part;
    }
    return parts.join(QStringLiteral(" | "));
}
