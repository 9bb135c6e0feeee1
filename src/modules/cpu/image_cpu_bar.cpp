// Composing the CPU picture from the toolkit's graph, bar, meter and text primitives.
#include "modules/cpu/image_cpu_bar.h"

#include "modules/picture_label.h"
#include "toolkit/circle_meter.h"
#include "toolkit/cpu_graph.h"
#include "toolkit/level_bar.h"
#include "toolkit/point_canvas.h"
#include "toolkit/text_drawing.h"
#include "toolkit/value_format.h"

#include <array>
#include <numeric>

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
                                 const CpuPictureSettings& settings, const History<CpuSample>& history)
{
    setFrame(size, newInsets, highLighted, emptyLine, settings, history);
}

double ImageCpuBar::drawRect(QPainter& painter) const
{
    const CpuPictureSettings& s = mySettings;
    if (!s.loaded || resumeArray.empty())
        return 0;
    const CpuSample& newest = resumeArray.back();
    const auto coreNum = static_cast<qsizetype>(newest.size()) - 1;
    double x = 0;

    x += drawModuleLabel(painter, s);

    const bool average = s.average;
    const qsizetype first = average ? coreNum : 0;
    const qsizetype last = average ? coreNum : coreNum - 1;
    if (first < 0 || first > last)
        return x;

    TextAttributes attributes = s.textAttributes;

    const double innerHeight = mySize.height() - insets.top - insets.bottom;
    const QList<qint64>& order = s.order;
    for (qsizetype record = first; record <= last; ++record) {
        const auto core = static_cast<std::size_t>(record);
        const std::array<double, 4> f = fractionsOf(newest[core]);
        forEachShownElement(order, s.shownElements(), [&](qint64 code) {
            switch (code) {
            case Graph:
                drawGraph(painter, core, x);
                break;
            case LevelBar:
                // Shares stack from the bottom; the frame colour comes last, over them.
                tvlDrawLevelBar(painter,
                                {{s.shares[0], f[CpuUser]},
                                 {s.shares[1], f[CpuSystem]},
                                 {s.shares[2], f[CpuNice]},
                                 {s.shares[3], f[CpuIdle]},
                                 {s.frame, {}}},
                                QRectF(x, insets.top, kLevelBarWidth, innerHeight), drawInWhite);
                x += kLevelBarWidth + insets.spacing;
                break;
            case CycleMeter:
                // The meter walks its list backwards, so here the frame colour comes first.
                tvlDrawCicleBar(painter,
                                {{s.frame, {}},
                                 {s.shares[0], f[CpuUser]},
                                 {s.shares[1], f[CpuSystem]},
                                 {s.shares[2], f[CpuNice]},
                                 {s.shares[3], f[CpuIdle]}},
                                QRectF(x, insets.top, innerHeight, innerHeight), isHighLighted, drawInWhite);
                x += innerHeight + insets.spacing;
                break;
            case Text:
                drawText(painter, attributes, f[CpuUser], f[CpuSystem], x);
                break;
            default:
                break;
            }
        });
    }
    return x;
}

void ImageCpuBar::drawGraph(QPainter& painter, std::size_t core, double& x) const
{
    const CpuPictureSettings& s = mySettings;
    const double graphWidth = s.graphWidth;
    const CpuGraphStyle style{s.graphAsLine, s.lineAsBold, {s.shares[0], s.shares[1], s.shares[2], s.shares[3]}};
    // The graph's frame names its right edge: it draws leftwards from there, newest first.
    const QRectF frame(x + graphWidth, insets.top, graphWidth, mySize.height() - insets.top - insets.bottom);
    const double widthLeft = tvlDrawCpuGraph(painter, resumeArray, core, style, frame, drawInWhite);
    if (widthLeft > 0 && drawEmptyLine)
        tvlDrawEmptyUnderLine(painter, s.emptyLine, x, insets.top, widthLeft);
    x += graphWidth + insets.spacing;
}

void ImageCpuBar::drawText(QPainter& painter, TextAttributes& attributes, double usrUsage, double sysUsage,
                           double& x) const
{
    const CpuPictureSettings& s = mySettings;
    const double width = s.textWidth;
    const QRectF frame(x, 0, width, mySize.height());
    const int ajustPointY = s.fontAdjust;
    if (s.textAverage) {
        tvlDrawString(painter, calcPercent(usrUsage + sysUsage), 1, 1, s.averageText, attributes, frame, ajustPointY,
                      drawInWhite);
    } else {
        tvlDrawString(painter, calcPercent(usrUsage), 0, 2, s.shares[0], attributes, frame, ajustPointY, drawInWhite);
        tvlDrawString(painter, calcPercent(sysUsage), 2, 2, s.shares[1], attributes, frame, ajustPointY, drawInWhite);
    }
    x += width + insets.spacing;
}
