// Drawing a module's aggregates over a past range into the drop-down's graph area.
#include "modules/history_chart.h"

#include "history/history_table.h"
#include "toolkit/localization.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace {

constexpr double kLegendHeight = 14;

QColor seriesColor(qsizetype index)
{
    static const std::array<QColor, 8> colors{
        QColor(0x1f, 0x77, 0xb4), QColor(0xff, 0x7f, 0x0e), QColor(0x2c, 0xa0, 0x2c), QColor(0xd6, 0x27, 0x28),
        QColor(0x94, 0x67, 0xbd), QColor(0x8c, 0x56, 0x4b), QColor(0xe3, 0x77, 0xc2), QColor(0x7f, 0x7f, 0x7f)};
    return colors[static_cast<std::size_t>(index) % colors.size()];
}

double scaleTop(const QList<SeriesHistory>& series)
{
    const bool shares =
        std::all_of(series.begin(), series.end(), [](const SeriesHistory& s) { return s.unit == FigureUnit::Percent; });
    if (shares)
        return 100;
    double top = 0;
    for (const SeriesHistory& s : series) {
        for (const Aggregate& a : s.buckets)
            top = std::max(top, a.max);
    }
    return top > 0 ? top : 1;
}

// One path per run of consecutive buckets: the band (maxima forward, minima back) and the means.
void drawSeries(QPainter& painter, const SeriesHistory& series, const QColor& color, const HistoryChartFrame& frame,
                const QRectF& plot, double top)
{
    const double span = static_cast<double>(std::max<std::int64_t>(frame.lastBucket - frame.firstBucket, 1));
    const auto x = [&](std::int64_t bucket) {
        return plot.left() + static_cast<double>(bucket - frame.firstBucket) / span * plot.width();
    };
    const auto y = [&](double value) { return plot.bottom() - std::clamp(value / top, 0.0, 1.0) * plot.height(); };
    QColor band = color;
    band.setAlphaF(0.25);
    qsizetype start = 0;
    const QList<Aggregate>& buckets = series.buckets;
    for (qsizetype i = 1; i <= buckets.size(); ++i) {
        if (i < buckets.size() && buckets[i].bucket == buckets[i - 1].bucket + 1)
            continue;
        QPainterPath area;
        QPainterPath mean;
        for (qsizetype j = start; j < i; ++j) {
            const QPointF high(x(buckets[j].bucket), y(buckets[j].max));
            const QPointF middle(high.x(), y(buckets[j].mean));
            j == start ? area.moveTo(high) : area.lineTo(high);
            j == start ? mean.moveTo(middle) : mean.lineTo(middle);
        }
        for (qsizetype j = i - 1; j >= start; --j)
            area.lineTo(x(buckets[j].bucket), y(buckets[j].min));
        area.closeSubpath();
        painter.fillPath(area, band);
        painter.strokePath(mean, QPen(color, i - start == 1 ? 2.0 : 1.2));
        start = i;
    }
}

void drawLegend(QPainter& painter, const QList<SeriesHistory>& series, const QRectF& row, const QString& topText)
{
    const QFontMetricsF metrics(painter.font());
    const double topWidth = metrics.horizontalAdvance(topText);
    painter.drawText(QRectF(row.right() - topWidth, row.top(), topWidth, row.height()), Qt::AlignVCenter, topText);
    double x = row.left();
    const double end = row.right() - topWidth - 8;
    for (qsizetype i = 0; i < series.size(); ++i) {
        const QString name = historySeriesLabel(series[i].series);
        const double width = 10 + metrics.horizontalAdvance(name);
        if (x + width > end)
            break;
        painter.fillRect(QRectF(x, row.center().y() - 3, 6, 6), seriesColor(i));
        painter.drawText(QRectF(x + 9, row.top(), width, row.height()), Qt::AlignVCenter, name);
        x += width + 8;
    }
}

} // namespace

QString historySeriesLabel(const QString& name)
{
    static const std::pair<const char*, const char*> ours[] = {{"busy", Tarvel::textKey("Busy")},
                                                               {"used", Tarvel::textKey("Used")},
                                                               {"app", Tarvel::textKey("App")},
                                                               {"cached", Tarvel::textKey("Cached")},
                                                               {"swap used", Tarvel::textKey("Swap used")},
                                                               {"up", Tarvel::textKey("Up")},
                                                               {"down", Tarvel::textKey("Down")},
                                                               {"average", Tarvel::textKey("Average")}};
    for (const auto& [stored, shown] : ours) {
        if (name == QLatin1String(stored))
            return Tarvel::localized(shown);
    }
    return name;
}

QImage drawHistoryChart(const QList<SeriesHistory>& series, const HistoryChartFrame& frame)
{
    QImage image(frame.size * frame.scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(frame.scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPointSizeF(8);
    painter.setFont(font);
    painter.setPen(frame.text);
    const QRectF whole(QPointF(0, 0), QSizeF(frame.size));
    const bool empty =
        std::none_of(series.begin(), series.end(), [](const SeriesHistory& s) { return !s.buckets.isEmpty(); });
    if (empty) {
        painter.drawText(whole, Qt::AlignCenter, frame.emptyText);
        return image;
    }
    const double top = scaleTop(series);
    const QRectF plot = whole.adjusted(2, kLegendHeight + 2, -2, -2);
    QColor grid = frame.text;
    grid.setAlphaF(0.2);
    painter.setPen(QPen(grid, 1));
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.drawLine(plot.topLeft(), plot.topRight());
    for (qsizetype i = 0; i < series.size(); ++i)
        drawSeries(painter, series[i], seriesColor(i), frame, plot, top);
    painter.setPen(frame.text);
    drawLegend(painter, series, QRectF(2, 0, whole.width() - 4, kLegendHeight),
               readableValue(top, series.front().unit));
    return image;
}
