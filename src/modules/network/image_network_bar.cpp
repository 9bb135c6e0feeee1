// Composing the Network picture from labels, lamps, the rate graph and the rate texts.
#include "modules/network/image_network_bar.h"

#include "modules/network/network_graph.h"
#include "modules/network/network_theme_keys.h"
#include "modules/picture_label.h"
#include "prefs/pref_keys.h"
#include "toolkit/circle_meter.h"
#include "toolkit/level_bar.h"
#include "toolkit/menu_font.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"

using namespace PrefKey;
using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { UdLabel = 1, UdCircle = 2, Graph = 3, Text = 4 };

// Between the middle of the bar and each lamp.
constexpr double kLampSpacer = 1;

} // namespace

void ImageNetworkBar::redrawWithSize(QSizeF size, Insets newInsets, bool highLighted, bool emptyLine,
                                     const ModuleDefaults& defaults, const History<NetworkSample>& history,
                                     const NetworkRates& current)
{
    setFrame(size, newInsets, highLighted, emptyLine, defaults, history);
    current_ = current;
}

double ImageNetworkBar::drawRect(QPainter& painter) const
{
    if (myDefaults.isEmpty() || resumeArray.empty())
        return 0;
    double x = 0;
    x += drawModuleLabel(painter, myDefaults, Network_ShowMyLabel, NetworkThemeKey::L03);

    TextAttributes attributes = menuTextAttributes(myDefaults);
    for (const qint64 code : myDefaults.intList(NetworkItemSortArray)) {
        switch (code) {
        case UdLabel:
            if (myDefaults.boolValue(Network_Display_UdLabel))
                drawUdLabel(painter, attributes, x);
            break;
        case UdCircle:
            if (myDefaults.boolValue(Network_Display_UdCircle))
                drawIndicator(painter, x);
            break;
        case Graph:
            if (myDefaults.boolValue(Network_Display_Graph))
                drawGraph(painter, x);
            break;
        case Text:
            if (myDefaults.boolValue(Network_Display_Text))
                drawText(painter, attributes, x);
            break;
        default: // codes of later versions are skipped
            break;
        }
    }
    return x;
}

void ImageNetworkBar::drawUdLabel(QPainter& painter, TextAttributes& attributes, double& x) const
{
    const double width = myDefaults.doubleValue(NetworkInnerUdLabelWidth);
    const QStringList labels = myDefaults.stringList(Network_UdLabel_ModeAry);
    const QRectF frame(x, 0, width, mySize.height());
    const auto ajustPointY = static_cast<int>(myDefaults.intValue(_FontAdjust));
    tvlDrawString(painter, labels.value(0), 0, 0, myDefaults.color(NetworkThemeKey::C01), attributes, frame,
                  ajustPointY, drawInWhite);
    tvlDrawString(painter, labels.value(1), 2, 0, myDefaults.color(NetworkThemeKey::C02), attributes, frame,
                  ajustPointY, drawInWhite);
    x += width + insets.spacing;
}

void ImageNetworkBar::drawIndicator(QPainter& painter, double& x) const
{
    const double limen = networkLimenBytes(myDefaults);
    const auto on = [limen](double rate) { return rate > 0 && rate >= limen; };
    tvlDrawTwoCircle(painter, on(current_.up), on(current_.down), myDefaults.color(NetworkThemeKey::C03),
                     myDefaults.color(NetworkThemeKey::C04), myDefaults.color(NetworkThemeKey::C01),
                     myDefaults.color(NetworkThemeKey::C02), x, mySize.height(), kLampDiameter, kLampSpacer,
                     drawInWhite);
    x += kLampDiameter + insets.spacing;
}

void ImageNetworkBar::drawGraph(QPainter& painter, double& x) const
{
    const auto graphWidth = static_cast<double>(myDefaults.intValue(Network_GraphWidth));
    const NetworkGraphStyle style{networkGraphKind(myDefaults.intValue(Network_Graph_Mode)),
                                  networkLimenBytes(myDefaults), myDefaults.color(NetworkThemeKey::C01),
                                  myDefaults.color(NetworkThemeKey::C02)};
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawNetworkGraph(painter, resumeArray, style, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, myDefaults.color(NetworkThemeKey::Z03), x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageNetworkBar::drawText(QPainter& painter, TextAttributes& attributes, double& x) const
{
    const double width = myDefaults.doubleValue(NetworkInnerTextWidth);
    const QRectF frame(x, 0, width, mySize.height());
    const auto ajustPointY = static_cast<int>(myDefaults.intValue(_FontAdjust));
    const bool bits = networkRatesInBits(myDefaults);
    tvlDrawString(painter, networkRateText(current_.up, bits), 0, 2, myDefaults.color(NetworkThemeKey::C01), attributes,
                  frame, ajustPointY, drawInWhite);
    tvlDrawString(painter, networkRateText(current_.down, bits), 2, 2, myDefaults.color(NetworkThemeKey::C02),
                  attributes, frame, ajustPointY, drawInWhite);
    x += width + insets.spacing;
}
