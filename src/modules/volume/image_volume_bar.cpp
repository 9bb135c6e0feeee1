// Composing the Volume picture from bars, meters, graphs, sizes and percentages.
#include "modules/volume/image_volume_bar.h"

#include "modules/volume/volume_usage.h"
#include "toolkit/circle_meter.h"
#include "toolkit/level_bar.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"
#include "toolkit/value_format.h"

#include <algorithm>

using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { BarChart = 1, CycleChart = 2, Graph = 3, Text = 4, Percent = 5 };

} // namespace

double ImageVolumeBar::setWidth() const
{
    return volumeSetWidth(mySettings, mySize.height(), insets.spacing);
}

void ImageVolumeBar::drawSet(QPainter& painter, const StorageBarSet& set, TextAttributes& attributes, double& x) const
{
    const VolumePictureSettings& settings = mySettings;
    // Before the first sample every volume reads empty.
    static const VolumeSample noSample;
    const VolumeUsage usage = volumeUsageOf(resumeArray.empty() ? noSample : resumeArray.back(), set.key);
    const double innerHeight = mySize.height() - insets.top - insets.bottom;
    const double used = usedFraction(usage);
    const double free = freeFraction(usage);
    const QColor usedInk = usedColor(used, settings.graphStyle);
    forEachShownElement(settings.order, settings.shownElements(), [&](qint64 code) {
        switch (code) {
        case BarChart:
            // Used space from the bottom, free space above it, the frame over both.
            tvlDrawLevelBar(painter, {{usedInk, used}, {settings.freeColor, free}, {settings.frame, {}}},
                            QRectF(x, insets.top, kVolumeBarChartWidth, innerHeight), drawInWhite);
            x += kVolumeBarChartWidth + insets.spacing;
            break;
        case CycleChart:
            // The meter walks its list backwards: used space starts at the top.
            tvlDrawCicleBar(painter, {{settings.frame, {}}, {settings.freeColor, free}, {usedInk, used}},
                            QRectF(x, insets.top, innerHeight, innerHeight), isHighLighted, drawInWhite);
            x += innerHeight + insets.spacing;
            break;
        case Graph:
            drawGraph(painter, set.key, x);
            break;
        case Text:
            drawText(painter, attributes, usage, x);
            break;
        case Percent:
            drawPercent(painter, attributes, usage, x);
            break;
        default:
            break;
        }
    });
}

void ImageVolumeBar::drawGraph(QPainter& painter, const QString& path, double& x) const
{
    const VolumePictureSettings& settings = mySettings;
    const double graphWidth = settings.graphWidth;
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawVolumeGraph(painter, resumeArray, path, settings.graphStyle, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, settings.emptyLine, x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageVolumeBar::drawText(QPainter& painter, TextAttributes& attributes, const VolumeUsage& usage, double& x) const
{
    const VolumePictureSettings& settings = mySettings;
    const int ajustPointY = settings.fontAdjust;
    const QColor& ink = settings.textColor;
    double left = x;
    if (const double labelWidth = settings.textLabelWidth; labelWidth > 0) {
        const QRectF column(x, 0, labelWidth, mySize.height());
        tvlDrawString(painter, settings.textLabels.value(0), 0, 0, ink, attributes, column, ajustPointY, drawInWhite);
        tvlDrawString(painter, settings.textLabels.value(1), 2, 0, ink, attributes, column, ajustPointY, drawInWhite);
        left += labelWidth + 1;
    }
    const QColor usedInk = settings.coloredValue ? usedColor(usedFraction(usage), settings.graphStyle) : ink;
    const QRectF frame(left, 0, settings.textValueWidth, mySize.height());
    tvlDrawString(painter, calcDiskSize(usage.used), 0, 2, usedInk, attributes, frame, ajustPointY, drawInWhite);
    tvlDrawString(painter, calcDiskSize(usage.free), 2, 2, ink, attributes, frame, ajustPointY, drawInWhite);
    x += volumeTextWidth(settings) + insets.spacing;
}

void ImageVolumeBar::drawPercent(QPainter& painter, TextAttributes& attributes, const VolumeUsage& usage,
                                 double& x) const
{
    const VolumePictureSettings& settings = mySettings;
    const double width = settings.percentWidth;
    const double shown = shownFraction(usage, settings.percentKind);
    // Coloured, the figure warns by how full the volume is, whichever share it shows.
    const QColor ink =
        settings.coloredValue ? usedColor(usedFraction(usage), settings.graphStyle) : settings.percentColor;
    tvlDrawString(painter, calcPercent(shown), 1, 1, ink, attributes, QRectF(x, 0, width, mySize.height()),
                  settings.fontAdjust, drawInWhite);
    x += width + insets.spacing;
}
