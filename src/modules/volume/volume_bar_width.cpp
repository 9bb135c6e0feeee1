// The Volume status item's width rule and its sets.
#include "modules/volume/volume_bar_width.h"

#include "toolkit/menu_geometry.h"

std::vector<StorageBarSet> volumeBarSets(const VolumePictureSettings& settings, const VolumeBaseDict& volumeBaseDict)
{
    return storageBarSets(settings.eachSet, volumeBaseDict, [](const VolumeBaseEntry& volume) {
        return volumePicture(volume.iconKind, volume.bsdName, volume.isRemovable);
    });
}

int volumeShownElementCount(const VolumePictureSettings& settings)
{
    return shownElementCount(settings.shownElements());
}

double volumeTextWidth(const VolumePictureSettings& settings)
{
    const double label = settings.textLabelWidth;
    return (label > 0 ? label + 1 : 0) + settings.textValueWidth;
}

double volumeSetWidth(const VolumePictureSettings& settings, double height, double spacing)
{
    const TvlClasses::Insets insets = TvlClasses::retStatusMenuInsets(volumeShownElementCount(settings));
    double width = 0;
    if (settings.barChart)
        width += kVolumeBarChartWidth + spacing;
    if (settings.cycleChart) // square, as high as the bar less the insets
        width += height - insets.top - insets.bottom + spacing;
    if (settings.graph)
        width += settings.graphWidth + spacing;
    if (settings.text)
        width += volumeTextWidth(settings) + spacing;
    if (settings.percent)
        width += settings.percentWidth + spacing;
    return width;
}

double volumeBarWidth(const VolumePictureSettings& settings, std::size_t setCount, double height)
{
    return storageBarWidth(volumeShownElementCount(settings), setCount, settings.showLabel,
                           [&settings, height](double spacing) { return volumeSetWidth(settings, height, spacing); });
}
