// The CPU history graph and the line segment that line graphs are made of.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace TvlClasses {

struct CpuGraphStyle {
    bool asLine = false;          // one line per share instead of stacked columns
    bool bold = false;            // 1-point lines on whole points instead of 0.5-point lines
    std::array<QColor, 4> colors; // user, system, nice, idle
};

// Strokes one segment in the pen's colour, from previous at x to current at x - 1, both
// raised by offsetY. Bold lines snap both ends up to whole points.
void tvlDrawGraphWithLine(QPainter& painter, double previous, double current, double processX, double offsetY,
                          bool isBoldLine);

// One processor's tick differences in the order user, system, nice, idle.
using CpuTicks = std::array<std::int64_t, 4>;
// The processor's ticks in sample i (0 the oldest); none where that sample lacks the processor.
using CpuTicksAt = std::function<const CpuTicks*(std::size_t i)>;

// Draws the ticks of every sample leftwards from the frame's right edge, newest first, one
// point per sample. frame.x() is the graph's RIGHT edge; frame.width() its width. Returns the
// width on the left that no sample reached (the full width for an empty history, 0 or less
// once the history fills the graph).
double tvlDrawCpuGraph(QPainter& painter, std::size_t sampleCount, const CpuTicksAt& ticksAt,
                       const CpuGraphStyle& style, QRectF frame, bool drawInWhite);

// The same over any list of samples that each hold one record of ticks per processor.
template <class Samples>
double tvlDrawCpuGraph(QPainter& painter, const Samples& history, std::size_t nowCore, const CpuGraphStyle& style,
                       QRectF frame, bool drawInWhite)
{
    const auto ticksAt = [&history, nowCore](std::size_t i) -> const CpuTicks* {
        const auto& sample = history[i];
        return nowCore < sample.size() ? &sample[nowCore] : nullptr;
    };
    return tvlDrawCpuGraph(painter, history.size(), ticksAt, style, frame, drawInWhite);
}

} // namespace TvlClasses
