// The Disk history graph: read and write rates, newest on the right.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace TvlClasses {

// Disk_Graph_Mode, in the order of the graph kinds list: read and write stacked from the bottom;
// read up and write down from the middle; stacked and centred on the middle; two thin lines;
// two heavy lines.
enum class DiskGraphKind { Stacked = 1, Opposed = 2, Centered = 3, Line = 4, HeavyLine = 5 };

// Disk_Percent_Mode: how a rate becomes a height. Relative: against the busiest moment the graph
// shows (at least kDiskGraphMinimumScale, so a trickle does not fill it). Logarithmic: from 1 B/s
// at the bottom to 1 GB/s at the top, so small and large transfers both show.
enum class DiskGraphScale { Relative = 1, Logarithmic = 2 };

inline constexpr double kDiskGraphMinimumScale = 100'000;

struct DiskGraphStyle {
    DiskGraphKind kind = DiskGraphKind::Stacked;
    DiskGraphScale scale = DiskGraphScale::Relative;
    QColor read;
    QColor write;
};

// The kind and scale a stored mode selects; unknown values fall back to the first.
DiskGraphKind diskGraphKind(qint64 storedMode);
DiskGraphScale diskGraphScale(qint64 storedMode);

// Draws the rates of the device under key (all counted devices for an empty key) leftwards from
// the frame's right edge, one point per pair of neighbouring samples. frame.x() is the RIGHT
// edge. Returns the width on the left that no rate reached (the full width before two samples).
double tvlDrawDiskGraph(QPainter& painter, const History<DiskSample>& history, const QString& key,
                        const DiskGraphStyle& style, QRectF frame, bool drawInWhite);

} // namespace TvlClasses
