// Columns and lines of the Disk graph, scaled to the window shown or logarithmically.
#include "modules/disk/disk_graph.h"

#include "modules/disk/disk_rates.h"
#include "toolkit/color_list.h"
#include "toolkit/cpu_graph.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace TvlClasses {

namespace {

constexpr double kLogDecades = 9; // 1 B/s to 1 GB/s

bool stacks(DiskGraphKind kind)
{
    return kind == DiskGraphKind::Stacked || kind == DiskGraphKind::Centered;
}

// A rate as a fraction of the graph's height (of each half, for the opposed kind).
struct Scaler {
    DiskGraphScale scale;
    double peak;
    double operator()(double rate) const
    {
        if (rate <= 0)
            return 0;
        if (scale == DiskGraphScale::Logarithmic)
            return std::clamp(std::log10(rate) / kLogDecades, 0.0, 1.0);
        return std::min(rate / peak, 1.0);
    }
};

void drawColumn(QPainter& painter, const DiskRates& rates, const Scaler& scaler, DiskGraphKind kind, const QColor& read,
                const QColor& write, double left, const QRectF& frame)
{
    const double h = frame.height();
    if (kind == DiskGraphKind::Opposed) {
        const double middle = frame.y() + h / 2;
        painter.fillRect(QRectF(left, middle, 1, scaler(rates.read) * h / 2), read);
        const double down = scaler(rates.write) * h / 2;
        painter.fillRect(QRectF(left, middle - down, 1, down), write);
        return;
    }
    const double sum = rates.read + rates.write;
    if (sum <= 0)
        return;
    const double total = scaler(sum) * h;
    const double readHeight = total * rates.read / sum;
    const double bottom = kind == DiskGraphKind::Centered ? frame.y() + (h - total) / 2 : frame.y();
    if (kind == DiskGraphKind::Centered) { // write below the middle, read above it
        painter.fillRect(QRectF(left, bottom, 1, total - readHeight), write);
        painter.fillRect(QRectF(left, bottom + total - readHeight, 1, readHeight), read);
    } else { // read from the bottom, write on top of it
        painter.fillRect(QRectF(left, bottom, 1, readHeight), read);
        painter.fillRect(QRectF(left, bottom + readHeight, 1, total - readHeight), write);
    }
}

} // namespace

DiskGraphKind diskGraphKind(qint64 storedMode)
{
    return storedMode >= 1 && storedMode <= 5 ? static_cast<DiskGraphKind>(storedMode) : DiskGraphKind::Stacked;
}

DiskGraphScale diskGraphScale(qint64 storedMode)
{
    return storedMode == 2 ? DiskGraphScale::Logarithmic : DiskGraphScale::Relative;
}

double tvlDrawDiskGraph(QPainter& painter, const History<DiskSample>& history, const QString& key,
                        const DiskGraphStyle& style, QRectF frame, bool drawInWhite)
{
    const auto width = static_cast<std::size_t>(std::max(0.0, std::floor(frame.width())));
    const std::size_t columns = history.size() < 2 ? 0 : std::min(width, history.size() - 1);
    if (columns == 0)
        return frame.width();

    // Newest first; the scale is known only once every shown rate is.
    std::vector<std::optional<DiskRates>> rates;
    rates.reserve(columns);
    double peak = kDiskGraphMinimumScale;
    for (std::size_t j = 0; j < columns; ++j) {
        rates.push_back(diskRatesAt(history, history.size() - 1 - j, key));
        if (const auto& r = rates.back())
            peak = std::max(peak, stacks(style.kind) ? r->read + r->write : std::max(r->read, r->write));
    }
    const Scaler scaler{style.scale, peak};
    const QColor read = drawingColor(style.read, drawInWhite);
    const QColor write = drawingColor(style.write, drawInWhite);
    const bool lines = style.kind == DiskGraphKind::Line || style.kind == DiskGraphKind::HeavyLine;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, lines);
    double previousRead = -1;
    double previousWrite = -1;
    for (std::size_t j = 0; j < columns; ++j) {
        const double x = frame.x() - static_cast<double>(j);
        if (!rates[j]) {
            // A device missing from a sample leaves a gap that no line bridges.
            previousRead = previousWrite = -1;
            continue;
        }
        if (!lines) {
            drawColumn(painter, *rates[j], scaler, style.kind, read, write, x - 1, frame);
            continue;
        }
        const bool bold = style.kind == DiskGraphKind::HeavyLine;
        const double currentRead = scaler(rates[j]->read) * frame.height();
        const double currentWrite = scaler(rates[j]->write) * frame.height();
        if (previousRead > -1) {
            painter.setPen(write);
            tvlDrawGraphWithLine(painter, previousWrite, currentWrite, x, frame.y() + 0.5, bold);
            painter.setPen(read);
            tvlDrawGraphWithLine(painter, previousRead, currentRead, x, frame.y() + 0.5, bold);
        }
        previousRead = currentRead;
        previousWrite = currentWrite;
    }
    painter.restore();
    return frame.width() - static_cast<double>(columns);
}

} // namespace TvlClasses
