// Composing the Network picture from labels, lamps, the rate graph and the rate texts.
#include "modules/network/image_network_bar.h"

#include "modules/network/network_graph.h"
#include "modules/picture_label.h"
#include "toolkit/circle_meter.h"
#include "toolkit/level_bar.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"

using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { UdLabel = 1, UdCircle = 2, Graph = 3, Text = 4 };

// Between the middle of the bar and each lamp.
constexpr double kLampSpacer = 1;

} // namespace

void ImageNetworkBar::redrawWithSize(QSizeF size, Insets newInsets, bool highLighted, bool emptyLine,
                                     const NetworkPictureSettings& settings, const History<NetworkSample>& history,
                                     const NetworkRates& current)
{
    setFrame(size, newInsets, highLighted, emptyLine, settings, history);
    current_ = current;
}

double ImageNetworkBar::drawRect(QPainter& painter) const
{
    const NetworkPictureSettings& settings = mySettings;
    if (!settings.loaded || resumeArray.empty())
        return 0;
    double x = 0;
    x += drawModuleLabel(painter, settings);

    TextAttributes attributes = settings.textAttributes;
    forEachShownElement(settings.order, settings.shownElements(), [&](qint64 code) {
        switch (code) {
        case UdLabel:
            drawUdLabel(painter, attributes, x);
            break;
        case UdCircle:
            drawIndicator(painter, x);
            break;
        case Graph:
            drawGraph(painter, x);
            break;
        case Text:
            drawText(painter, attributes, x);
            break;
        default:
            break;
        }
    });
    return x;
}

void ImageNetworkBar::drawUdLabel(QPainter& painter, TextAttributes& attributes, double& x) const
{
    const NetworkPictureSettings& settings = mySettings;
    const double width = settings.udLabelWidth;
    const QRectF frame(x, 0, width, mySize.height());
    const int ajustPointY = settings.fontAdjust;
    tvlDrawString(painter, settings.udLabels.value(0), 0, 0, settings.up, attributes, frame, ajustPointY, drawInWhite);
    tvlDrawString(painter, settings.udLabels.value(1), 2, 0, settings.down, attributes, frame, ajustPointY,
                  drawInWhite);
    x += width + insets.spacing;
}

void ImageNetworkBar::drawIndicator(QPainter& painter, double& x) const
{
    const NetworkPictureSettings& settings = mySettings;
    const double limen = settings.limen;
    const auto on = [limen](double rate) { return rate > 0 && rate >= limen; };
    tvlDrawTwoCircle(painter, on(current_.up), on(current_.down), settings.lampFrame, settings.lampOff, settings.up,
                     settings.down, x, mySize.height(), kLampDiameter, kLampSpacer, drawInWhite);
    x += kLampDiameter + insets.spacing;
}

void ImageNetworkBar::drawGraph(QPainter& painter, double& x) const
{
    const NetworkPictureSettings& settings = mySettings;
    const double graphWidth = settings.graphWidth;
    const NetworkGraphStyle style{settings.graphKind, settings.limen, settings.up, settings.down};
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawNetworkGraph(painter, resumeArray, style, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, settings.emptyLine, x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageNetworkBar::drawText(QPainter& painter, TextAttributes& attributes, double& x) const
{
    const NetworkPictureSettings& settings = mySettings;
    const double width = settings.textWidth;
    const QRectF frame(x, 0, width, mySize.height());
    const int ajustPointY = settings.fontAdjust;
    tvlDrawString(painter, networkRateText(current_.up, settings.bits), 0, 2, settings.up, attributes, frame,
                  ajustPointY, drawInWhite);
    tvlDrawString(painter, networkRateText(current_.down, settings.bits), 2, 2, settings.down, attributes, frame,
                  ajustPointY, drawInWhite);
    x += width + insets.spacing;
}
