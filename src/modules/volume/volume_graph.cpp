// Columns and lines of the Volume graph, each in the colour of its fill.
#include "modules/volume/volume_graph.h"

#include "modules/volume/volume_usage.h"
#include "toolkit/color_list.h"
#include "toolkit/cpu_graph.h"
#include "toolkit/graph_color.h"

namespace TvlClasses {

QColor usedColor(double usedFraction, const VolumeGraphStyle& style)
{
    return retGraphColor(usedFraction, style.low, style.warning, style.critical, style.gradient);
}

double tvlDrawVolumeGraph(QPainter& painter, const History<VolumeSample>& history, const QString& path,
                          const VolumeGraphStyle& style, QRectF frame, bool drawInWhite)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, style.asLine);
    double previous = -1;
    for (std::size_t i = history.size(); i > 0 && frame.width() > 0; --i) {
        const VolumeUsage usage = volumeUsageOf(history[i - 1], path);
        if (usage.total <= 0) {
            previous = -1; // no line bridges a sample without the volume
        } else {
            const double fraction = usedFraction(usage);
            const QColor color = drawingColor(usedColor(fraction, style), drawInWhite);
            const double current = fraction * frame.height();
            if (!style.asLine) {
                painter.fillRect(QRectF(frame.x() - 1, frame.y(), 1, current), color);
            } else if (previous > -1) {
                painter.setPen(color);
                tvlDrawGraphWithLine(painter, previous, current, frame.x(), frame.y() + 0.5, style.bold);
            }
            previous = current;
        }
        frame.translate(-1, 0);
        frame.setWidth(frame.width() - 1);
    }
    painter.restore();
    return frame.width();
}

} // namespace TvlClasses
