// Stacked-column and line forms of the CPU history graph.
#include "toolkit/cpu_graph.h"

#include "toolkit/color_list.h"

#include <QLineF>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace TvlClasses {

namespace {

using Fractions = std::array<double, 4>;

// Indexes of the four shares, in the ticks' order.
enum Share : std::size_t { User = 0, System = 1, Nice = 2, Idle = 3 };

Fractions shares(const CpuTicks& record)
{
    const auto sum = std::accumulate(record.begin(), record.end(), std::int64_t{0});
    Fractions out{};
    if (sum > 0) {
        for (std::size_t i = 0; i < out.size(); ++i)
            out[i] = static_cast<double>(record[i]) / static_cast<double>(sum);
    }
    return out;
}

// Each share is its own line, not stacked; the segment joins it to the newer sample.
void drawLines(QPainter& painter, const Fractions& fractions, Fractions& previous, const std::array<QColor, 4>& colors,
               const QRectF& frame, bool bold)
{
    constexpr std::array<std::size_t, 4> kOrder{Idle, Nice, System, User};
    for (const std::size_t share : kOrder) {
        const double current = fractions[share] * frame.height();
        if (previous[share] > -1.0) {
            painter.setPen(colors[share]);
            tvlDrawGraphWithLine(painter, previous[share], current, frame.x(), frame.y() + 0.5, bold);
        }
        previous[share] = current;
    }
}

void drawColumn(QPainter& painter, const Fractions& fractions, const std::array<QColor, 4>& colors, const QRectF& frame)
{
    const double left = frame.x() - 1;
    double stacked = 0;
    for (const std::size_t share : {User, System, Nice}) {
        if (fractions[share] <= 0)
            continue;
        const double height = fractions[share] * frame.height();
        painter.fillRect(QRectF(left, frame.y() + stacked, 1, height), colors[share]);
        stacked += height;
    }
    // Rounding may leave the four shares a hair above 1; idle takes only what is left.
    if (fractions[Idle] > 0) {
        const double height = std::min(fractions[Idle] * frame.height(), frame.height() - stacked);
        painter.fillRect(QRectF(left, frame.y() + stacked, 1, height), colors[Idle]);
    }
}

} // namespace

void tvlDrawGraphWithLine(QPainter& painter, double previous, double current, double processX, double offsetY,
                          bool isBoldLine)
{
    QLineF line(processX, previous + offsetY, processX - 1, current + offsetY);
    if (isBoldLine)
        line = QLineF(std::ceil(line.x1()), std::ceil(line.y1()), std::ceil(line.x2()), std::ceil(line.y2()));
    const QPen pen = painter.pen();
    painter.setPen(QPen(pen.color(), isBoldLine ? 1.0 : 0.5, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(line);
    painter.setPen(pen);
}

double tvlDrawCpuGraph(QPainter& painter, std::size_t sampleCount, const CpuTicksAt& ticksAt,
                       const CpuGraphStyle& style, QRectF frame, bool drawInWhite)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, style.asLine);

    std::array<QColor, 4> colors;
    for (std::size_t i = 0; i < colors.size(); ++i)
        colors[i] = drawingColor(style.colors[i], drawInWhite);

    Fractions previous{-1.0, -1.0, -1.0, -1.0};
    for (std::size_t i = sampleCount; i > 0 && frame.width() > 0; --i) {
        if (const CpuTicks* ticks = ticksAt(i - 1)) {
            const Fractions fractions = shares(*ticks);
            if (style.asLine)
                drawLines(painter, fractions, previous, colors, frame, style.bold);
            else if (std::any_of(fractions.begin(), fractions.end(), [](double f) { return f > 0; }))
                drawColumn(painter, fractions, colors, frame);
        } else {
            // A sample without this record leaves a gap that no line bridges.
            previous.fill(-1.0);
        }
        frame.translate(-1, 0);
        frame.setWidth(frame.width() - 1);
    }

    painter.restore();
    return frame.width();
}

} // namespace TvlClasses
