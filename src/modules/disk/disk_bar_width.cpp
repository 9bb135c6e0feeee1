// The Disk status item's width rule and its sets.
#include "modules/disk/disk_bar_width.h"

namespace {

double labelColumn(const DiskLabelColumn& column)
{
    return column.width > 0 ? column.width + 1 : 0;
}

} // namespace

DiskBaseDict shownDisks(const DiskPictureSettings& settings, const DiskBaseDict& diskBaseDict)
{
    if (settings.virtualDisks)
        return diskBaseDict;
    DiskBaseDict shown;
    for (const auto& [key, disk] : diskBaseDict)
        if (!disk.isVirtual)
            shown.emplace(key, disk);
    return shown;
}

std::vector<StorageBarSet> diskBarSets(const DiskPictureSettings& settings, const DiskBaseDict& diskBaseDict)
{
    return storageBarSets(settings.eachSet, shownDisks(settings, diskBaseDict),
                          [](const DiskBaseEntry& disk) { return volumePicture(disk.iconKind, disk.bsdName); });
}

int diskShownElementCount(const DiskPictureSettings& settings)
{
    return shownElementCount(settings.shownElements());
}

double diskIndicatorWidth(const DiskPictureSettings& settings)
{
    return labelColumn(settings.indicatorLabels) + kDiskLampDiameter;
}

double diskGraphElementWidth(const DiskPictureSettings& settings)
{
    return labelColumn(settings.graphLabels) + settings.graphWidth;
}

double diskTextWidth(const DiskPictureSettings& settings)
{
    return labelColumn(settings.textLabels) + settings.textValueWidth;
}

double diskSetWidth(const DiskPictureSettings& settings, double spacing)
{
    double width = 0;
    if (settings.indicator)
        width += diskIndicatorWidth(settings) + spacing;
    if (settings.graph)
        width += diskGraphElementWidth(settings) + spacing;
    if (settings.text)
        width += diskTextWidth(settings) + spacing;
    return width;
}

double diskBarWidth(const DiskPictureSettings& settings, std::size_t setCount)
{
    return storageBarWidth(diskShownElementCount(settings), setCount, settings.showLabel,
                           [&settings](double spacing) { return diskSetWidth(settings, spacing); });
}
