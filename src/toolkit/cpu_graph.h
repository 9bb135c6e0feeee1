// The CPU history graph and the line segment that line graphs are made of.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

#include <array>
#include <cstddef>

namespace TvlClasses {

struct CpuGraphStyle {
    bool asLine = false;          // one line per share instead of stacked columns
    bool bold = false;            // 1-point lines on whole points instead of 0.5-point lines
    std::array<QColor, 4> colors; // indexed by CpuState: user, system, nice, idle
};

// Strokes one segment in the pen's colour, from previous at x to current at x - 1, both
// raised by offsetY. Bold lines snap both ends up to whole points.
void tvlDrawGraphWithLine(QPainter& painter, double previous, double current, double processX, double offsetY,
                          bool isBoldLine);

// Draws record nowCore of every sample leftwards from the frame's right edge, newest first,
// one point per sample. frame.x() is the graph's RIGHT edge; frame.width() its width.
// Returns the width on the left that no sample reached (the full width for an empty
// history, 0 or less once the history fills the graph).
double tvlDrawCpuGraph(QPainter& painter, const History<CpuSample>& history, std::size_t nowCore,
                       const CpuGraphStyle& style, QRectF frame, bool drawInWhite);

} // namespace TvlClasses
