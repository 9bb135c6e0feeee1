// The CPU graph's columns, lines and returned width, and the threshold colours.
#include "toolkit/cpu_graph.h"
#include "toolkit/graph_color.h"
#include "toolkit/recording_paint_device.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace TvlClasses;

namespace {

// A sample holds one record per processor; these tests draw processor 0.
using CpuSamples = std::vector<CpuTicks>;
using CpuHistory = std::vector<CpuSamples>;
enum Share : std::size_t { CpuUser = 0, CpuSystem = 1, CpuNice = 2, CpuIdle = 3 };

const CpuGraphStyle kColumns{false, false, {QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255), QColor(9, 9, 9)}};

// Single-record samples, oldest first.
CpuHistory historyOf(std::initializer_list<CpuTicks> records)
{
    CpuHistory history;
    for (const CpuTicks& record : records)
        history.push_back(CpuSamples{record});
    return history;
}

struct Drawn {
    double widthLeft;
    std::vector<DrawCall> calls;
};

Drawn draw(const CpuHistory& history, const CpuGraphStyle& style, const QRectF& frame)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    const double left = tvlDrawCpuGraph(painter, history, 0, style, frame, false);
    painter.end();
    return {left, device.calls()};
}

} // namespace

TEST(CpuGraph, ColumnsStackUserSystemNiceIdleAndSkipEmptyShares)
{
    const Drawn drawn = draw(historyOf({{2, 1, 0, 1}}), kColumns, QRectF(45, 1, 40, 19));
    EXPECT_DOUBLE_EQ(drawn.widthLeft, 39);
    ASSERT_EQ(drawn.calls.size(), 3U);
    EXPECT_EQ(drawn.calls[0].rect, QRectF(44, 1, 1, 9.5));
    EXPECT_EQ(drawn.calls[0].brush, kColumns.colors[CpuUser]);
    EXPECT_EQ(drawn.calls[1].rect, QRectF(44, 10.5, 1, 4.75));
    EXPECT_EQ(drawn.calls[2].rect, QRectF(44, 15.25, 1, 4.75));
    EXPECT_EQ(drawn.calls[2].brush, kColumns.colors[CpuIdle]);
    EXPECT_FALSE(drawn.calls[0].antialiased);
}

TEST(CpuGraph, IdleIsCutToWhatTheOtherSharesLeave)
{
    // These shares add up to a hair above the frame's height in floating point.
    const Drawn drawn = draw(historyOf({{1, 4, 6, 2}}), kColumns, QRectF(10, 0, 10, 19));
    ASSERT_EQ(drawn.calls.size(), 4U);
    EXPECT_LE(drawn.calls.back().rect.bottom(), 19.0);
}

TEST(CpuGraph, WidthLeftTracksHowFarTheHistoryReaches)
{
    const Drawn empty = draw(CpuHistory(), kColumns, QRectF(40, 1, 40, 19));
    EXPECT_DOUBLE_EQ(empty.widthLeft, 40);
    EXPECT_TRUE(empty.calls.empty());

    // Newest first from the right edge; the all-zero newest sample leaves its column empty.
    const Drawn gap = draw(historyOf({{0, 0, 0, 1}, {0, 0, 0, 0}}), kColumns, QRectF(40, 1, 40, 19));
    EXPECT_DOUBLE_EQ(gap.widthLeft, 38);
    ASSERT_EQ(gap.calls.size(), 1U);
    EXPECT_DOUBLE_EQ(gap.calls[0].rect.x(), 38);

    CpuHistory longer;
    for (int i = 0; i < 10; ++i)
        longer.push_back(CpuSamples{{1, 1, 1, 1}});
    const Drawn full = draw(longer, kColumns, QRectF(45, 1, 5, 19));
    EXPECT_LE(full.widthLeft, 0);
    ASSERT_EQ(full.calls.size(), 20U);
    const auto leftmost = std::min_element(full.calls.begin(), full.calls.end(),
                                           [](const auto& a, const auto& b) { return a.rect.x() < b.rect.x(); });
    EXPECT_DOUBLE_EQ(leftmost->rect.x(), 40); // stops at the graph's left edge
}

TEST(CpuGraph, LinesJoinEachShareToTheNewerSampleIdleFirst)
{
    CpuGraphStyle style = kColumns;
    style.asLine = true;
    const CpuHistory history = historyOf({{0, 0, 0, 0}, {1, 0, 0, 1}});
    const Drawn thin = draw(history, style, QRectF(40, 1, 40, 19));
    ASSERT_EQ(thin.calls.size(), 4U);
    EXPECT_EQ(thin.calls[0].pen, style.colors[CpuIdle]);
    EXPECT_EQ(thin.calls[1].pen, style.colors[CpuNice]);
    EXPECT_EQ(thin.calls[3].pen, style.colors[CpuUser]);
    EXPECT_DOUBLE_EQ(thin.calls[0].penWidth, 0.5);
    EXPECT_TRUE(thin.calls[0].antialiased);
    // From the newer sample's half height at x 39 down to the bottom at x 38.
    const QPainterPath& idle = thin.calls[0].path;
    EXPECT_EQ(idle.elementAt(0), QPointF(39, 11));
    EXPECT_EQ(idle.elementAt(1), QPointF(38, 1.5));

    style.bold = true;
    const Drawn bold = draw(history, style, QRectF(40.5, 1, 40, 19));
    ASSERT_EQ(bold.calls.size(), 4U);
    EXPECT_DOUBLE_EQ(bold.calls[0].penWidth, 1);
    EXPECT_EQ(bold.calls[0].path.elementAt(0), QPointF(40, 11));
    EXPECT_EQ(bold.calls[0].path.elementAt(1), QPointF(39, 2));
}

TEST(RetGraphColor, LowBelowSevenTenthsCriticalFromNineTenthsBlendBetween)
{
    const QColor low(0, 255, 0), warning(QColor::fromRgbF(1, 1, 0, 1)), critical(QColor::fromRgbF(1, 0, 0, 0.5F));
    EXPECT_EQ(retGraphColor(0.69, low, warning, critical, true), low);
    EXPECT_EQ(retGraphColor(0.7, low, warning, critical, false), warning);
    EXPECT_EQ(retGraphColor(0.85, low, warning, critical, false), warning);
    EXPECT_EQ(retGraphColor(0.9, low, warning, critical, false), critical);
    EXPECT_EQ(retGraphColor(0.9, low, warning, critical, true), critical);

    EXPECT_NEAR(retGraphColor(0.7, low, warning, critical, true).greenF(), 1, 1e-4);
    const QColor middle = retGraphColor(0.8, low, warning, critical, true);
    EXPECT_NEAR(middle.redF(), 1, 1e-4);
    EXPECT_NEAR(middle.greenF(), 0.5, 1e-4);
    EXPECT_NEAR(middle.alphaF(), 0.75, 1e-4);
}
