// Level bars, cycle meters and lamps: the rectangles and angles they draw.
#include "toolkit/circle_meter.h"
#include "toolkit/level_bar.h"
#include "toolkit/recording_paint_device.h"

#include <gtest/gtest.h>

using namespace TvlClasses;

namespace {

const QColor kRed(255, 0, 0);
const QColor kGreen(0, 255, 0);
const QColor kFrame(0, 0, 0);

void expectRect(const DrawCall& call, const QRectF& rect)
{
    EXPECT_DOUBLE_EQ(call.rect.x(), rect.x());
    EXPECT_DOUBLE_EQ(call.rect.y(), rect.y());
    EXPECT_DOUBLE_EQ(call.rect.width(), rect.width());
    EXPECT_DOUBLE_EQ(call.rect.height(), rect.height());
}

} // namespace

TEST(LevelBar, StacksSharesFromTheBottomInsetThenStrokesTheFrame)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    painter.setRenderHint(QPainter::Antialiasing);
    tvlDrawLevelBar(painter, {{kRed, 0.25}, {kGreen, 0.75}, {kFrame, {}}}, QRectF(10, 1, 7, 19), false);
    painter.end();

    const auto& calls = device.calls();
    ASSERT_EQ(calls.size(), 3U);
    expectRect(calls[0], QRectF(11, 2, 6, 4.5));
    EXPECT_EQ(calls[0].brush, kRed);
    EXPECT_FALSE(calls[0].pen.isValid());
    expectRect(calls[1], QRectF(11, 6.5, 6, 13.5));
    EXPECT_EQ(calls[1].brush, kGreen);
    expectRect(calls[2], QRectF(10, 1, 7, 19));
    EXPECT_EQ(calls[2].pen, kFrame);
    EXPECT_DOUBLE_EQ(calls[2].penWidth, 1);
    EXPECT_FALSE(calls[2].brush.isValid());
    for (const DrawCall& call : calls)
        EXPECT_FALSE(call.antialiased);
}

TEST(LevelBar, OverflowsUnclippedSkipsEmptySharesAndWhitensKeepingAlpha)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    const QColor halfRed(255, 0, 0, 128);
    tvlDrawLevelBar(painter, {{halfRed, 0.75}, {kGreen, 0}, {kGreen, 0.75}}, QRectF(10, 1, 7, 19), true);
    tvlDrawLevelBar(painter, {}, QRectF(10, 1, 7, 19), false);
    painter.end();

    const auto& calls = device.calls();
    ASSERT_EQ(calls.size(), 2U);
    expectRect(calls[1], QRectF(11, 15.5, 6, 13.5));
    EXPECT_EQ(calls[0].brush, QColor(255, 255, 255, 128));
    EXPECT_EQ(calls[1].brush, QColor(Qt::white));
}

TEST(CicleBar, SlicesRunCounterClockwiseFromTheTopLastEntryFirstThenTheRing)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    tvlDrawCicleBar(painter, {{kFrame, {}}, {kRed, 0.25}, {kGreen, 0.75}}, QRectF(0, 0, 20, 20), false, false);
    painter.end();

    const QPointF centre(9.75, 10.25); // the frame shrunk by half a point
    const auto calls = device.calls(DrawCall::Path);
    ASSERT_EQ(calls.size(), 3U);
    const Wedge last = wedgeOf(calls[0].path, centre);
    EXPECT_EQ(calls[0].brush, kGreen);
    EXPECT_NEAR(last.start, 90, 0.01);
    EXPECT_NEAR(last.sweep, 270, 0.01);
    const Wedge first = wedgeOf(calls[1].path, centre);
    EXPECT_EQ(calls[1].brush, kRed);
    EXPECT_NEAR(first.start, 0, 0.01);
    EXPECT_NEAR(first.sweep, 90, 0.01);
    EXPECT_EQ(calls[2].pen, kFrame);
    EXPECT_FALSE(calls[2].brush.isValid());
    EXPECT_NEAR(calls[2].rect.width(), 19.5, 0.01);
    for (const DrawCall& call : calls)
        EXPECT_TRUE(call.antialiased);
}

TEST(CicleBar, HighlightedFillsOnlyWhatTheAlmostTransparentSharesLeave)
{
    const QColor idle(0, 0, 255, 51); // alpha 0.2
    const ColorList list{{kFrame, {}}, {kRed, 0.4}, {idle, 0.6}};
    for (const bool white : {false, true}) {
        RecordingPaintDevice device;
        QPainter painter(&device);
        tvlDrawCicleBar(painter, list, QRectF(0, 0, 20, 20), true, white);
        painter.end();

        const auto calls = device.calls(DrawCall::Path);
        ASSERT_EQ(calls.size(), 2U); // the ring, then one wedge
        EXPECT_FALSE(calls[0].brush.isValid());
        const Wedge wedge = wedgeOf(calls[1].path, QPointF(9.75, 10.25));
        EXPECT_NEAR(wedge.start, 306, 0.01);
        EXPECT_NEAR(wedge.sweep, 144, 0.01);
        EXPECT_EQ(calls[1].brush, white ? QColor(Qt::white) : QColor::fromRgbF(0.5F, 0.5F, 0.5F));
    }
}

TEST(TwoCircle, LampsSitAroundTheMiddleAndFillInTheirColourOnlyWhenOn)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    const QColor background(40, 40, 40);
    tvlDrawTwoCircle(painter, true, false, kFrame, background, kRed, kGreen, 3, 22, 6, 1, false);
    painter.end();

    const auto calls = device.calls(DrawCall::Path);
    ASSERT_EQ(calls.size(), 4U); // stroke and fill, upper lamp then lower lamp
    EXPECT_EQ(calls[0].rect, QRectF(3, 12, 6, 6));
    EXPECT_EQ(calls[0].pen, kFrame);
    EXPECT_DOUBLE_EQ(calls[0].penWidth, 0.5);
    EXPECT_EQ(calls[1].rect, QRectF(3, 12, 6, 6)); // the outer oval fills whole
    EXPECT_EQ(calls[1].brush, kRed);
    EXPECT_EQ(calls[2].rect, QRectF(3, 4, 6, 6));
    EXPECT_EQ(calls[3].brush, background);
}

TEST(DrawingPrimitives, LeaveThePainterAsTheyFoundIt)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(Qt::blue, 3));
    painter.setBrush(Qt::yellow);
    const QTransform before = painter.transform();

    const ColorList list{{kFrame, {}}, {kRed, 0.5}, {QColor(0, 0, 0, 10), 0.5}};
    tvlDrawLevelBar(painter, list, QRectF(0, 0, 7, 19), false);
    tvlDrawEmptyUnderLine(painter, kRed, 0, 1, 10);
    tvlDrawCicleBar(painter, list, QRectF(0, 0, 19, 19), true, false);
    painter.setRenderHint(QPainter::Antialiasing, false);
    tvlDrawCicleBar(painter, list, QRectF(0, 0, 19, 19), false, false);
    tvlDrawTwoCircle(painter, true, true, kFrame, kFrame, kRed, kGreen, 0, 22, 6, 1, false);

    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    EXPECT_EQ(painter.pen(), QPen(Qt::blue, 3));
    EXPECT_EQ(painter.brush(), QBrush(Qt::yellow));
    EXPECT_EQ(painter.transform(), before);
}
