// The drop-down graph of a past range: each series' mean as a line over its minimum-to-maximum band.
#pragma once

#include "history/history_types.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <cstdint>

struct HistoryChartFrame {
    Resolution resolution = Resolution::Minute;
    std::int64_t firstBucket = 0; // drawn at the left edge
    std::int64_t lastBucket = 0;  // drawn at the right edge: the bucket under way
    QSize size;                   // points
    qreal scale = 1;              // device pixels per point
    QColor text;                  // the legend, the scale and the empty notice
    QString emptyText;            // shown when no series has a bucket in the frame
};

// Series share one scale: 0 to 100 when all are shares, else 0 to the largest maximum. A bucket
// missing (the program was not running) breaks the line rather than bridging it. The legend
// names the series across the top as far as there is room; the scale's top is on the right.
QImage drawHistoryChart(const QList<SeriesHistory>& series, const HistoryChartFrame& frame);

// A series' name as the legend shows it, in the user's language where it is one of ours.
QString historySeriesLabel(const QString& name);
