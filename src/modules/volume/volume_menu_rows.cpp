// Texts of the Volume drop-down and of the terminal's Volume line.
#include "modules/volume/volume_menu_rows.h"

#include "toolkit/localization.h"
#include "toolkit/value_format.h"

#include <QStringList>

QString volumeFactsText(const QString& path, const VolumeBaseEntry& volume)
{
    QStringList facts;
    if (!volume.fileType.isEmpty())
        facts << volume.fileType;
    facts << (volume.isNetworkVol || volume.bsdPath.isEmpty() ? volume.bsdName : volume.bsdPath);
    facts << path;
    if (!volume.isWritable)
        facts << Tarvel::localized("Read only");
    return facts.join(QStringLiteral(" · "));
}

QString volumeUsageText(const VolumeUsage& usage)
{
    if (usage.total <= 0)
        return Tarvel::localized("Not measured yet");
    return Tarvel::localized("Used") + QLatin1Char(' ') + TvlClasses::calcDiskSize(usage.used) + QStringLiteral(" (") +
           TvlClasses::calcPercent(usedFraction(usage)) + QStringLiteral(") · ") + Tarvel::localized("Free") +
           QLatin1Char(' ') + TvlClasses::calcDiskSize(usage.free) + QStringLiteral(" · ") + Tarvel::localized("of") +
           QLatin1Char(' ') + TvlClasses::calcDiskSize(usage.total);
}

QString volumeBarText(const std::vector<StorageBarSet>& sets, const VolumeBaseDict& volumeBaseDict,
                      const History<VolumeSample>& history, VolumePercentKind kind)
{
    static const VolumeSample noSample;
    const VolumeSample& newest = history.empty() ? noSample : history.back();
    const QString share = kind == VolumePercentKind::Free ? QStringLiteral(" free") : QStringLiteral(" used");
    QStringList parts;
    for (const StorageBarSet& set : sets) {
        const VolumeUsage usage = volumeUsageOf(newest, set.key);
        // Not measured yet (just mounted): no figure rather than a false 0%.
        QString part =
            usage.total > 0 ? TvlClasses::calcPercent(shownFraction(usage, kind)) + share : QStringLiteral("--");
        if (const auto volume = volumeBaseDict.find(set.key); volume != volumeBaseDict.end())
            part.prepend(volume->second.volumeName + QLatin1Char(' '));
        parts << part;
    }
    return parts.join(QStringLiteral(" | "));
}
