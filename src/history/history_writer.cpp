// Minute folding and writing on the history's own thread.
#include "history/history_writer.h"

namespace {

std::int64_t floorDiv(std::int64_t a, std::int64_t b)
{
    return a >= 0 ? a / b : -((-a + b - 1) / b);
}

} // namespace

std::pair<std::int64_t, std::int64_t> bucketSpan(Resolution resolution, std::int64_t nowMs, std::int64_t seconds)
{
    const std::int64_t span = bucketSeconds(resolution) * 1000;
    return {floorDiv(nowMs - seconds * 1000, span), floorDiv(nowMs, span)};
}

HistoryWriter::HistoryWriter(const QString& path, HistoryClock clock, bool durable)
    : clock_(std::move(clock))
    , database_(path, durable)
{
    database_.open();
}

void HistoryWriter::record(const QList<Figure>& figures)
{
    if (const std::optional<MinuteBatch> finished = accumulator_.add(figures, clock_()))
        write(*finished);
}

void HistoryWriter::finish()
{
    if (const std::optional<MinuteBatch> partial = accumulator_.takeAll())
        write(*partial);
}

void HistoryWriter::write(const MinuteBatch& batch)
{
    if (database_.writeMinute(batch))
        ++writes_;
}

QList<SeriesHistory> HistoryWriter::read(const QString& module, Resolution resolution, std::int64_t seconds)
{
    const auto [first, last] = bucketSpan(resolution, clock_(), seconds);
    return database_.read(module, resolution, first, last);
}
