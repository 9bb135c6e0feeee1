// Composing the CPU picture from the toolkit's graph, bar, meter and text primitives.
#include "modules/cpu/image_cpu_bar.h"

#include "modules/cpu/cpu_theme_keys.h"
#include "modules/picture_label.h"
#include "prefs/pref_keys.h"
#include "toolkit/circle_meter.h"
#include "toolkit/cpu_graph.h"
#include "toolkit/level_bar.h"
#include "toolkit/menu_font.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"
#include "toolkit/value_format.h"

#include <array>
#include <numeric>

using namespace PrefKey;
using namespace TvlClasses;

namespace {

enum ElementCode : qint64 { Graph = 1, LevelBar = 2, CycleMeter = 3, Text = 4 };

constexpr double kLevelBarWidth = 7;

std::array<double, 4> fractionsOf(const CpuRecord& record)
{
    const auto sum = std::accumulate(record.begin(), record.end(), std::int64_t{0});
    std::array<double, 4> out{};
    if (sum > 0) {
        for (std::size_t i = 0; i < out.size(); ++i)
            out[i] = static_cast<double>(record[i]) / static_cast<double>(sum);
    }
    return out;
}

} // namespace

void ImageCpuBar::redrawWithSize(QSizeF size, Insets newInsets, bool highLighted, bool emptyLine,
                                 const ModuleDefaults& defaults, const History<CpuSample>& history)
{
    setFrame(size, newInsets, highLighted, emptyLine, defaults, history);
}

double ImageCpuBar::drawRect(QPainter& painter) const
{
    if (myDefaults.isEmpty() || resumeArray.empty())
        return 0;
    const CpuSample& newest = resumeArray.back();
    const auto coreNum = static_cast<qsizetype>(newest.size()) - 1;
    double x = 0;

    x += drawModuleLabel(painter, myDefaults, Cpu_ShowMyLabel, CpuThemeKey::L01);

    const bool average = myDefaults.boolValue(Cpu_AverageMultiProcessors);
    const qsizetype first = average ? coreNum : 0;
    const qsizetype last = average ? coreNum : coreNum - 1;
    if (first < 0 || first > last)
        return x;

    TextAttributes attributes;
    attributes.shadow = retNormalTextShadow(myDefaults.color(CpuThemeKey::Z01));
    attributes.font =
        menuFont(myDefaults.stringValue(_FontPostScriptName),
                 9 + myDefaults.doubleValue(_FontSizeDiff) + (myDefaults.boolValue(Cpu_Text_DisplayAverage) ? 1 : 0));

    const double innerHeight = mySize.height() - insets.top - insets.bottom;
    const QList<qint64> order = myDefaults.intList(CpuItemSortArray);
    for (qsizetype record = first; record <= last; ++record) {
        const auto core = static_cast<std::size_t>(record);
        const std::array<double, 4> f = fractionsOf(newest[core]);
        for (const qint64 code : order) {
            switch (code) {
            case Graph:
                if (myDefaults.boolValue(Cpu_Display_Graph))
                    drawGraph(painter, core, x);
                break;
            case LevelBar:
                if (myDefaults.boolValue(Cpu_Display_LevelBar)) {
                    // Shares stack from the bottom; the frame colour comes last, over them.
                    tvlDrawLevelBar(painter,
                                    {{myDefaults.color(CpuThemeKey::A01), f[CpuUser]},
                                     {myDefaults.color(CpuThemeKey::A02), f[CpuSystem]},
                                     {myDefaults.color(CpuThemeKey::A03), f[CpuNice]},
                                     {myDefaults.color(CpuThemeKey::A04), f[CpuIdle]},
                                     {myDefaults.color(CpuThemeKey::A05), {}}},
                                    QRectF(x, insets.top, kLevelBarWidth, innerHeight), drawInWhite);
                    x += kLevelBarWidth + insets.spacing;
                }
                break;
            case CycleMeter:
                if (myDefaults.boolValue(Cpu_Display_CircleMeter)) {
                    // The meter walks its list backwards, so here the frame colour comes first.
                    tvlDrawCicleBar(painter,
                                    {{myDefaults.color(CpuThemeKey::A05), {}},
                                     {myDefaults.color(CpuThemeKey::A01), f[CpuUser]},
                                     {myDefaults.color(CpuThemeKey::A02), f[CpuSystem]},
                                     {myDefaults.color(CpuThemeKey::A03), f[CpuNice]},
                                     {myDefaults.color(CpuThemeKey::A04), f[CpuIdle]}},
                                    QRectF(x, insets.top, innerHeight, innerHeight), isHighLighted, drawInWhite);
                    x += innerHeight + insets.spacing;
                }
                break;
            case Text:
                if (myDefaults.boolValue(Cpu_Display_Text))
                    drawText(painter, attributes, f[CpuUser], f[CpuSystem], x);
                break;
            default: // codes of later versions are skipped
                break;
            }
        }
    }
    return x;
}

void ImageCpuBar::drawGraph(QPainter& painter, std::size_t core, double& x) const
{
    const auto graphWidth = static_cast<double>(myDefaults.intValue(Cpu_GraphWidth));
    const CpuGraphStyle style{myDefaults.boolValue(CPU_GraphAsLine),
                              myDefaults.boolValue(CPU_LineAsBold),
                              {myDefaults.color(CpuThemeKey::A01), myDefaults.color(CpuThemeKey::A02),
                               myDefaults.color(CpuThemeKey::A03), myDefaults.color(CpuThemeKey::A04)}};
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawCpuGraph(painter, resumeArray, core, style, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, myDefaults.color(CpuThemeKey::Z03), x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageCpuBar::drawText(QPainter& painter, TextAttributes& attributes, double usrUsage, double sysUsage,
                           double& x) const
{
    const double width = myDefaults.doubleValue(CpuInnerTextWidth);
    const QRectF frame(x, 0, width, mySize.height());
    const auto ajustPointY = static_cast<int>(myDefaults.intValue(_FontAdjust));
    if (myDefaults.boolValue(Cpu_Text_DisplayAverage)) {
        tvlDrawString(painter, calcPercent(usrUsage + sysUsage), 1, 1, myDefaults.color(CpuThemeKey::A07), attributes,
                      frame, ajustPointY, drawInWhite);
    } else {
        tvlDrawString(painter, calcPercent(usrUsage), 0, 2, myDefaults.color(CpuThemeKey::A01), attributes, frame,
                      ajustPointY, drawInWhite);
        tvlDrawString(painter, calcPercent(sysUsage), 2, 2, myDefaults.color(CpuThemeKey::A02), attributes, frame,
                      ajustPointY, drawInWhite);
    }
    x += width + insets.spacing;
}
