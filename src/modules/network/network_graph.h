// The Network history graph: upload and download rates in one of five styles.
#pragma once

#include "collect/history.h"
#include "collect/network_sample.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

// Network_Graph_Mode, in the order of the graph-style list:
enum class NetworkGraphKind {
    Default = 1,  // both rise from the bottom, the smaller in front of the larger
    Opposed = 2,  // download rises from the bottom, upload hangs from the top
    Centered = 3, // upload rises from the middle, download falls from it, each in half the height
    Line = 4,     // a thin line each, from the bottom
    HeavyLine = 5 // the same with one-point lines
};

// Unknown stored values draw the default style.
NetworkGraphKind networkGraphKind(qint64 storedMode);

struct NetworkGraphStyle {
    NetworkGraphKind kind = NetworkGraphKind::Default;
    double limen = 0; // bytes per second below which a rate draws nothing
    QColor up;
    QColor down;
};

// Draws the rate of every sample against its predecessor leftwards from the frame's right edge,
// newest first, one point per sample, scaled to the highest rate in view (never below the
// limen, so that a trickle just above it does not fill the graph). frame.x() is the graph's
// RIGHT edge. Returns the width on the left that no rate reached.
double tvlDrawNetworkGraph(QPainter& painter, const History<NetworkSample>& history, const NetworkGraphStyle& style,
                           QRectF frame, bool drawInWhite);
