// Composing the Disk picture from lamps, graphs and rate texts.
#include "modules/disk/image_disk_bar.h"

#include "modules/disk/disk_graph.h"
#include "toolkit/circle_meter.h"
#include "toolkit/level_bar.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"
#include "toolkit/value_format.h"

#include <algorithm>

using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { Indicator = 1, Graph = 2, Text = 3 };

constexpr double kLampSpacer = 1;

} // namespace

double ImageDiskBar::setWidth() const
{
    return diskSetWidth(mySettings, insets.spacing);
}

void ImageDiskBar::drawSet(QPainter& painter, const StorageBarSet& set, TextAttributes& attributes, double& x) const
{
    const DiskPictureSettings& settings = mySettings;
    // Before two samples every rate is 0: the lamps are off and the texts read 0.
    const DiskRates rates = newestDiskRates(resumeArray, set.key);
    forEachShownElement(settings.order, settings.shownElements(), [&](qint64 code) {
        switch (code) {
        case Indicator:
            drawIndicator(painter, attributes, rates, x);
            break;
        case Graph:
            drawGraph(painter, attributes, set.key, x);
            break;
        case Text:
            drawText(painter, attributes, rates, x);
            break;
        default:
            break;
        }
    });
}

double ImageDiskBar::drawLabels(QPainter& painter, TextAttributes& attributes, const DiskLabelColumn& column,
                                double x) const
{
    const double width = column.width;
    if (width <= 0)
        return 0;
    const DiskPictureSettings& settings = mySettings;
    const QRectF frame(x, 0, width, mySize.height());
    tvlDrawString(painter, column.labels.value(0), 0, 0, settings.graphStyle.read, attributes, frame,
                  settings.fontAdjust, drawInWhite);
    tvlDrawString(painter, column.labels.value(1), 2, 0, settings.graphStyle.write, attributes, frame,
                  settings.fontAdjust, drawInWhite);
    return width + 1;
}

void ImageDiskBar::drawIndicator(QPainter& painter, TextAttributes& attributes, const DiskRates& rates, double& x) const
{
    const DiskPictureSettings& settings = mySettings;
    const double lampX = x + drawLabels(painter, attributes, settings.indicatorLabels, x);
    // Read above, write below, as the labels beside them.
    tvlDrawTwoCircle(painter, rates.read > 0, rates.write > 0, settings.lampFrame, settings.lampOff,
                     settings.graphStyle.read, settings.graphStyle.write, lampX, mySize.height(), kDiskLampDiameter,
                     kLampSpacer, drawInWhite);
    x += diskIndicatorWidth(settings) + insets.spacing;
}

void ImageDiskBar::drawGraph(QPainter& painter, TextAttributes& attributes, const QString& key, double& x) const
{
    const DiskPictureSettings& settings = mySettings;
    const double left = x + drawLabels(painter, attributes, settings.graphLabels, x);
    const double graphWidth = settings.graphWidth;
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(left + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawDiskGraph(painter, resumeArray, key, settings.graphStyle, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, settings.emptyLine, left, insets.top, widthLeft);
    x += diskGraphElementWidth(settings) + insets.spacing;
}

void ImageDiskBar::drawText(QPainter& painter, TextAttributes& attributes, const DiskRates& rates, double& x) const
{
    const DiskPictureSettings& settings = mySettings;
    const double left = x + drawLabels(painter, attributes, settings.textLabels, x);
    const QRectF frame(left, 0, settings.textValueWidth, mySize.height());
    tvlDrawString(painter, calcDiscAccessPerSec(static_cast<qint64>(rates.read)), 0, 2, settings.graphStyle.read,
                  attributes, frame, settings.fontAdjust, drawInWhite);
    tvlDrawString(painter, calcDiscAccessPerSec(static_cast<qint64>(rates.write)), 2, 2, settings.graphStyle.write,
                  attributes, frame, settings.fontAdjust, drawInWhite);
    x += diskTextWidth(settings) + insets.spacing;
}
