// Composing the Disk picture from lamps, graphs and rate texts.
#include "modules/disk/image_disk_bar.h"

#include "modules/disk/disk_graph.h"
#include "modules/disk/disk_theme_keys.h"
#include "modules/picture_label.h"
#include "modules/volume/storage_pictures.h"
#include "prefs/pref_keys.h"
#include "toolkit/circle_meter.h"
#include "toolkit/level_bar.h"
#include "toolkit/menu_font.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"
#include "toolkit/value_format.h"

#include <algorithm>

using namespace PrefKey;
using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { Indicator = 1, Graph = 2, Text = 3 };

constexpr double kLampSpacer = 1;

} // namespace

void ImageDiskBar::redrawWithSize(QSizeF size, Insets newInsets, bool highLighted, bool emptyLine,
                                  const ModuleDefaults& defaults, const History<DiskSample>& history,
                                  const std::vector<DiskBarSet>& sets)
{
    setFrame(size, newInsets, highLighted, emptyLine, defaults, history);
    sets_ = sets;
}

double ImageDiskBar::drawRect(QPainter& painter) const
{
    if (myDefaults.isEmpty())
        return 0;
    double x = 0;
    x += drawModuleLabel(painter, myDefaults, Disk_ShowMyLabel, DiskThemeKey::L04);
    TextAttributes attributes = menuTextAttributes(myDefaults);
    for (const DiskBarSet& set : sets_)
        moduleForeach(painter, set, attributes, x);
    return x;
}

void ImageDiskBar::moduleForeach(QPainter& painter, const DiskBarSet& set, TextAttributes& attributes, double& x) const
{
    if (myDefaults.boolValue(DiskInnerIconAbleToBeBol) && !set.key.isEmpty())
        drawBackgroundIcon(painter, set, x);
    // Before two samples every rate is 0: the lamps are off and the texts read 0.
    const DiskRates rates = newestDiskRates(resumeArray, set.key);
    for (const qint64 code : myDefaults.intList(DiskItemSortArray)) {
        switch (code) {
        case Indicator:
            if (myDefaults.boolValue(Disk_Display_Indicator))
                drawIndicator(painter, attributes, rates, x);
            break;
        case Graph:
            if (myDefaults.boolValue(Disk_Display_Graph))
                drawGraph(painter, attributes, set.key, x);
            break;
        case Text:
            if (myDefaults.boolValue(Disk_Display_Text))
                drawText(painter, attributes, rates, x);
            break;
        default: // codes of later versions are skipped
            break;
        }
    }
}

double ImageDiskBar::drawLabels(QPainter& painter, TextAttributes& attributes, const char* listKey,
                                const char* widthKey, double x) const
{
    const double width = myDefaults.doubleValue(widthKey);
    if (width <= 0)
        return 0;
    const QStringList labels = myDefaults.stringList(listKey);
    const QRectF frame(x, 0, width, mySize.height());
    const auto ajustPointY = static_cast<int>(myDefaults.intValue(_FontAdjust));
    tvlDrawString(painter, labels.value(0), 0, 0, myDefaults.color(DiskThemeKey::D01), attributes, frame, ajustPointY,
                  drawInWhite);
    tvlDrawString(painter, labels.value(1), 2, 0, myDefaults.color(DiskThemeKey::D02), attributes, frame, ajustPointY,
                  drawInWhite);
    return width + 1;
}

void ImageDiskBar::drawIndicator(QPainter& painter, TextAttributes& attributes, const DiskRates& rates, double& x) const
{
    const double lampX = x + drawLabels(painter, attributes, Disk_Indicator_LabelAry, DiskInnerIndicatorLabelWidth, x);
    // Read above, write below, as the labels beside them.
    tvlDrawTwoCircle(painter, rates.read > 0, rates.write > 0, myDefaults.color(DiskThemeKey::D03),
                     myDefaults.color(DiskThemeKey::D04), myDefaults.color(DiskThemeKey::D01),
                     myDefaults.color(DiskThemeKey::D02), lampX, mySize.height(), kDiskLampDiameter, kLampSpacer,
                     drawInWhite);
    x += diskIndicatorWidth(myDefaults) + insets.spacing;
}

void ImageDiskBar::drawGraph(QPainter& painter, TextAttributes& attributes, const QString& key, double& x) const
{
    const double left = x + drawLabels(painter, attributes, Disk_Graph_LabelAry, DiskInnerGraphLabelWidth, x);
    const auto graphWidth = static_cast<double>(myDefaults.intValue(Disk_GraphWidth));
    const DiskGraphStyle style{diskGraphKind(myDefaults.intValue(Disk_Graph_Mode)),
                               diskGraphScale(myDefaults.intValue(Disk_Percent_Mode)),
                               myDefaults.color(DiskThemeKey::D01), myDefaults.color(DiskThemeKey::D02)};
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(left + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawDiskGraph(painter, resumeArray, key, style, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, myDefaults.color(DiskThemeKey::Z03), left, insets.top, widthLeft);
    x += diskGraphElementWidth(myDefaults) + insets.spacing;
}

void ImageDiskBar::drawText(QPainter& painter, TextAttributes& attributes, const DiskRates& rates, double& x) const
{
    const double left = x + drawLabels(painter, attributes, Disk_Text_LabelAry, DiskInnerTextLabelWidth, x);
    const QRectF frame(left, 0, myDefaults.doubleValue(DiskInnerTextValueWidth), mySize.height());
    const auto ajustPointY = static_cast<int>(myDefaults.intValue(_FontAdjust));
    tvlDrawString(painter, calcDiscAccessPerSec(static_cast<qint64>(rates.read)), 0, 2,
                  myDefaults.color(DiskThemeKey::D01), attributes, frame, ajustPointY, drawInWhite);
    tvlDrawString(painter, calcDiscAccessPerSec(static_cast<qint64>(rates.write)), 2, 2,
                  myDefaults.color(DiskThemeKey::D02), attributes, frame, ajustPointY, drawInWhite);
    x += diskTextWidth(myDefaults) + insets.spacing;
}

void ImageDiskBar::drawBackgroundIcon(QPainter& painter, const DiskBarSet& set, double x) const
{
    drawBackgroundPicture(painter, myDefaults.picture(set.pictureKey).image, x,
                          diskSetWidth(myDefaults, insets.spacing) - insets.spacing, insets.top,
                          mySize.height() - insets.bottom);
}
