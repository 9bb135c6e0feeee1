// The Volume history graph: how full a volume (or all of them) was, newest on the right.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace TvlClasses {

struct VolumeGraphStyle {
    bool asLine = false;   // a line instead of one-point columns
    bool bold = false;     // a 1-point line on whole points instead of a 0.5-point one
    bool gradient = false; // blend the warning and critical colours between 70% and 90%
    QColor low;
    QColor warning;
    QColor critical;
};

// The colour of a used share: low below 70%, warning from 70%, critical from 90%.
QColor usedColor(double usedFraction, const VolumeGraphStyle& style);

// Draws the used share of the volume at path (all volumes for an empty path) leftwards from the
// frame's right edge, one point per sample. frame.x() is the RIGHT edge. A sample that did not
// measure the volume leaves a gap. Returns the width on the left that no sample reached.
double tvlDrawVolumeGraph(QPainter& painter, const History<VolumeSample>& history, const QString& path,
                          const VolumeGraphStyle& style, QRectF frame, bool drawInWhite);

} // namespace TvlClasses
