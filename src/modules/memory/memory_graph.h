// The Memory history graph: the parts per sample, or the pressure in the application view.
#pragma once

#include "collect/history.h"
#include "collect/memory_sample.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

#include <array>
#include <cstdint>

struct MemoryGraphStyle {
    std::int64_t totalPages = 0;
    bool traditional = false;
    std::array<QColor, 6> partColors; // the breakdown's shares, bottom to top
    QColor low, warning, critical;    // pressure, from none to all memory in use
};

// Draws every sample leftwards from the frame's right edge, newest first, one point per sample:
// in the traditional view a column of the six shares stacked from the bottom, in the
// application view a column as high as the share in use, in the pressure colour of that share
// (blended between warning and critical). frame.x() is the graph's RIGHT edge. Returns the
// width on the left that no sample reached.
double tvlDrawMemoryGraph(QPainter& painter, const History<MemorySample>& history, const MemoryGraphStyle& style,
                          QRectF frame, bool drawInWhite);
