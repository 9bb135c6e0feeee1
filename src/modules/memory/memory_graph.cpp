// Memory graph columns, one point wide, drawn without anti-aliasing like the CPU graph.
#include "modules/memory/memory_graph.h"

#include "modules/memory/memory_breakdown.h"
#include "toolkit/color_list.h"
#include "toolkit/graph_color.h"

#include <algorithm>

double tvlDrawMemoryGraph(QPainter& painter, const History<MemorySample>& history, const MemoryGraphStyle& style,
                          QRectF frame, bool drawInWhite)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const double height = frame.height();
    for (std::size_t i = history.size(); i-- > 0 && frame.width() > 0;) {
        const MemoryBreakdown parts = memoryBreakdown(history[i], style.totalPages, style.traditional);
        const double x = frame.x() - 1;
        if (parts.total > 0 && style.traditional) {
            double filled = 0;
            for (std::size_t s = 0; s < parts.shares.size(); ++s) {
                const double h = std::min(parts.fraction(s) * height, height - filled);
                if (h <= 0)
                    continue;
                painter.fillRect(QRectF(x, frame.y() + filled, 1, h),
                                 TvlClasses::drawingColor(style.partColors[s], drawInWhite));
                filled += h;
            }
        } else if (parts.total > 0) {
            const double used = parts.inUseFraction();
            const QColor color = TvlClasses::retGraphColor(used, style.low, style.warning, style.critical, true);
            if (used > 0)
                painter.fillRect(QRectF(x, frame.y(), 1, used * height), TvlClasses::drawingColor(color, drawInWhite));
        }
        frame.translate(-1, 0);
        frame.setWidth(frame.width() - 1);
    }
    painter.restore();
    return frame.width();
}
