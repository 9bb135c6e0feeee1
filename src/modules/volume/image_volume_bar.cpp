// Composing the Volume picture from bars, meters, graphs, sizes and percentages.
#include "modules/volume/image_volume_bar.h"

#include "modules/picture_label.h"
#include "modules/volume/storage_pictures.h"
#include "modules/volume/volume_theme_keys.h"
#include "modules/volume/volume_usage.h"
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

enum ElementCode : qint64 { BarChart = 1, CycleChart = 2, Graph = 3, Text = 4, Percent = 5 };

} // namespace

void ImageVolumeBar::redrawWithSize(QSizeF size, Insets newInsets, bool highLighted, bool emptyLine,
                                    const ModuleDefaults& defaults, const History<VolumeSample>& history,
                                    const std::vector<VolumeBarSet>& sets)
{
    setFrame(size, newInsets, highLighted, emptyLine, defaults, history);
    sets_ = sets;
    style_ = VolumeGraphStyle{defaults.boolValue(Vlms_GraphAsLine),   defaults.boolValue(Vlms_LineAsBold),
                              defaults.boolValue(Vlms_GradientColor), defaults.color(VolumeThemeKey::E01),
                              defaults.color(VolumeThemeKey::E02),    defaults.color(VolumeThemeKey::E03)};
}

double ImageVolumeBar::drawRect(QPainter& painter) const
{
    if (myDefaults.isEmpty())
        return 0;
    double x = 0;
    x += drawModuleLabel(painter, myDefaults, Vlms_ShowMyLabel, VolumeThemeKey::L05);
    TextAttributes attributes = menuTextAttributes(myDefaults);
    // Before the first sample every volume reads empty.
    static const VolumeSample noSample;
    const VolumeSample& newest = resumeArray.empty() ? noSample : resumeArray.back();
    for (const VolumeBarSet& set : sets_)
        moduleForeach(painter, set, volumeUsageOf(newest, set.path), attributes, x);
    return x;
}

void ImageVolumeBar::moduleForeach(QPainter& painter, const VolumeBarSet& set, const VolumeUsage& usage,
                                   TextAttributes& attributes, double& x) const
{
    if (myDefaults.boolValue(VlmsInnerIconAbleToBeBol) && !set.path.isEmpty())
        drawBackgroundIcon(painter, set, x);
    const double innerHeight = mySize.height() - insets.top - insets.bottom;
    const double used = usedFraction(usage);
    const double free = freeFraction(usage);
    const QColor usedInk = usedColor(used, style_);
    for (const qint64 code : myDefaults.intList(VlmsItemSortArray)) {
        switch (code) {
        case BarChart:
            if (myDefaults.boolValue(Vlms_Display_BarChart)) {
                // Used space from the bottom, free space above it, the frame over both.
                tvlDrawLevelBar(painter,
                                {{usedInk, used},
                                 {myDefaults.color(VolumeThemeKey::E04), free},
                                 {myDefaults.color(VolumeThemeKey::E05), {}}},
                                QRectF(x, insets.top, kVolumeBarChartWidth, innerHeight), drawInWhite);
                x += kVolumeBarChartWidth + insets.spacing;
            }
            break;
        case CycleChart:
            if (myDefaults.boolValue(Vlms_Display_CycleChart)) {
                // The meter walks its list backwards: used space starts at the top.
                tvlDrawCicleBar(painter,
                                {{myDefaults.color(VolumeThemeKey::E05), {}},
                                 {myDefaults.color(VolumeThemeKey::E04), free},
                                 {usedInk, used}},
                                QRectF(x, insets.top, innerHeight, innerHeight), isHighLighted, drawInWhite);
                x += innerHeight + insets.spacing;
            }
            break;
        case Graph:
            if (myDefaults.boolValue(Vlms_Display_Graph))
                drawGraph(painter, set.path, x);
            break;
        case Text:
            if (myDefaults.boolValue(Vlms_Display_Text))
                drawText(painter, attributes, usage, x);
            break;
        case Percent:
            if (myDefaults.boolValue(Vlms_Display_Percent))
                drawPercent(painter, attributes, usage, x);
            break;
        default: // codes of later versions are skipped
            break;
        }
    }
}

void ImageVolumeBar::drawGraph(QPainter& painter, const QString& path, double& x) const
{
    const auto graphWidth = static_cast<double>(myDefaults.intValue(Vlms_GraphWidth));
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawVolumeGraph(painter, resumeArray, path, style_, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, myDefaults.color(VolumeThemeKey::Z03), x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageVolumeBar::drawText(QPainter& painter, TextAttributes& attributes, const VolumeUsage& usage, double& x) const
{
    const auto ajustPointY = static_cast<int>(myDefaults.intValue(_FontAdjust));
    const QColor ink = myDefaults.color(VolumeThemeKey::E06);
    double left = x;
    if (const double labelWidth = myDefaults.doubleValue(VlmsInnerTextLabelWidth); labelWidth > 0) {
        const QStringList labels = myDefaults.stringList(Vlms_Text_LabelAry);
        const QRectF column(x, 0, labelWidth, mySize.height());
        tvlDrawString(painter, labels.value(0), 0, 0, ink, attributes, column, ajustPointY, drawInWhite);
        tvlDrawString(painter, labels.value(1), 2, 0, ink, attributes, column, ajustPointY, drawInWhite);
        left += labelWidth + 1;
    }
    const QColor usedInk = myDefaults.boolValue(Vlms_ColoredValue) ? usedColor(usedFraction(usage), style_) : ink;
    const QRectF frame(left, 0, myDefaults.doubleValue(VlmsInnerTextValueWidth), mySize.height());
    tvlDrawString(painter, calcDiskSize(usage.used), 0, 2, usedInk, attributes, frame, ajustPointY, drawInWhite);
    tvlDrawString(painter, calcDiskSize(usage.free), 2, 2, ink, attributes, frame, ajustPointY, drawInWhite);
    x += volumeTextWidth(myDefaults) + insets.spacing;
}

void ImageVolumeBar::drawPercent(QPainter& painter, TextAttributes& attributes, const VolumeUsage& usage,
                                 double& x) const
{
    const double width = myDefaults.doubleValue(VlmsInnerPercentWidth);
    const double shown = shownFraction(usage, volumePercentKind(myDefaults.intValue(Vlms_Percent_Mode)));
    // Coloured, the figure warns by how full the volume is, whichever share it shows.
    const QColor ink = myDefaults.boolValue(Vlms_ColoredValue) ? usedColor(usedFraction(usage), style_)
                                                               : myDefaults.color(VolumeThemeKey::E07);
    tvlDrawString(painter, calcPercent(shown), 1, 1, ink, attributes, QRectF(x, 0, width, mySize.height()),
                  static_cast<int>(myDefaults.intValue(_FontAdjust)), drawInWhite);
    x += width + insets.spacing;
}

void ImageVolumeBar::drawBackgroundIcon(QPainter& painter, const VolumeBarSet& set, double x) const
{
    drawBackgroundPicture(painter, myDefaults.picture(set.pictureKey).image, x,
                          volumeSetWidth(myDefaults, mySize.height(), insets.spacing) - insets.spacing, insets.top,
                          mySize.height() - insets.bottom);
}
