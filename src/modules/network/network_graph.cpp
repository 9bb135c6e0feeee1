// Network graph columns and lines, drawn from the newest rate leftwards.
#include "modules/network/network_graph.h"

#include "modules/network/network_rates.h"
#include "toolkit/color_list.h"
#include "toolkit/cpu_graph.h"

#include <algorithm>

namespace {

double aboveLimen(double rate, double limen)
{
    return rate >= limen ? rate : 0.0;
}

void fillColumn(QPainter& painter, double x, double y, double height, const QColor& color)
{
    if (height > 0)
        painter.fillRect(QRectF(x - 1, y, 1, height), color);
}

// One column of the column kinds, u and d the up and down shares of the height h.
void drawNetworkColumn(QPainter& painter, NetworkGraphKind kind, QPointF at, double h, double u, double d,
                       const QColor& up, const QColor& down)
{
    const double x = at.x();
    const double y = at.y();
    switch (kind) {
    case NetworkGraphKind::Opposed:
        fillColumn(painter, x, y, d * h, down);
        fillColumn(painter, x, y + h - u * h, u * h, up);
        break;
    case NetworkGraphKind::Centered:
        fillColumn(painter, x, y + h / 2, u * h / 2, up);
        fillColumn(painter, x, y + h / 2 - d * h / 2, d * h / 2, down);
        break;
    default:
        // The larger behind, so that both stay visible.
        if (u > d) {
            fillColumn(painter, x, y, u * h, up);
            fillColumn(painter, x, y, d * h, down);
        } else {
            fillColumn(painter, x, y, d * h, down);
            fillColumn(painter, x, y, u * h, up);
        }
        break;
    }
}

} // namespace

NetworkGraphKind networkGraphKind(qint64 storedMode)
{
    return storedMode >= 1 && storedMode <= 5 ? static_cast<NetworkGraphKind>(storedMode) : NetworkGraphKind::Default;
}

double tvlDrawNetworkGraph(QPainter& painter, const History<NetworkSample>& history, const NetworkGraphStyle& style,
                           QRectF frame, bool drawInWhite)
{
    // Rates need two samples: the oldest one only starts the first difference.
    const std::size_t rates = history.size() > 1 ? history.size() - 1 : 0;
    const auto inView = std::min<std::size_t>(rates, static_cast<std::size_t>(std::max(frame.width(), 0.0)));
    double scale = std::max(style.limen, 1.0);
    for (std::size_t n = 0; n < inView; ++n) {
        const NetworkRates r = sampleRates(history, history.size() - 1 - n);
        scale = std::max({scale, r.up, r.down});
    }

    const QColor up = TvlClasses::drawingColor(style.up, drawInWhite);
    const QColor down = TvlClasses::drawingColor(style.down, drawInWhite);
    const bool lines = style.kind == NetworkGraphKind::Line || style.kind == NetworkGraphKind::HeavyLine;
    const bool bold = style.kind == NetworkGraphKind::HeavyLine;
    const double h = frame.height();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, lines);
    double previousUp = -1;
    double previousDown = -1;
    for (std::size_t n = 0; n < inView; ++n) {
        const NetworkRates r = sampleRates(history, history.size() - 1 - n);
        const double u = aboveLimen(r.up, style.limen) / scale;
        const double d = aboveLimen(r.down, style.limen) / scale;
        if (!lines) {
            drawNetworkColumn(painter, style.kind, frame.topLeft(), h, u, d, up, down);
        } else {
            if (previousDown > -1) {
                painter.setPen(down);
                TvlClasses::tvlDrawGraphWithLine(painter, previousDown, d * h, frame.x(), frame.y() + 0.5, bold);
                painter.setPen(up);
                TvlClasses::tvlDrawGraphWithLine(painter, previousUp, u * h, frame.x(), frame.y() + 0.5, bold);
            }
            previousUp = u * h;
            previousDown = d * h;
        }
        frame.translate(-1, 0);
        frame.setWidth(frame.width() - 1);
    }
    painter.restore();
    return frame.width();
}
