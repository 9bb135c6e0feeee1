// Reading a past range for an open drop-down and drawing it in the graph's place.
#include "modules/menu_history_graph.h"

#include "history/history_reader.h"
#include "modules/history_chart.h"
#include "toolkit/localization.h"

#include <QDateTime>
#include <QPointer>

namespace {

// The history gains a minute at a time.
constexpr qint64 kReadAgainMs = 60'000;

} // namespace

MenuHistoryGraph::MenuHistoryGraph(HistoryReader& reader, QString moduleKey, QObject* parent)
    : QObject(parent)
    , reader_(reader)
    , moduleKey_(std::move(moduleKey))
{}

QWidget* MenuHistoryGraph::makeChoice()
{
    auto* choice = new HistoryRangeChoice(range_);
    connect(choice, &HistoryRangeChoice::rangeChosen, this, &MenuHistoryGraph::setRange);
    return choice;
}

void MenuHistoryGraph::setRange(HistoryRange range)
{
    if (range == range_)
        return;
    range_ = range;
    menuClosed();
    Q_EMIT changed();
}

void MenuHistoryGraph::menuClosed()
{
    ++generation_;
    pendingReads_ = 0;
    series_.clear();
    readAge_.invalidate();
}

QImage MenuHistoryGraph::image(QSize size, qreal scale, const QColor& text)
{
    if (range_ == HistoryRange::Live)
        return {};
    if (pendingReads_ == 0 && (!readAge_.isValid() || readAge_.hasExpired(kReadAgainMs)))
        startRead();
    const Resolution resolution = rangeResolution(range_);
    const std::int64_t bucketMs = bucketSeconds(resolution) * 1000;
    // The frame ends at the moment of the read, so the newest bucket sits at the right edge.
    const std::int64_t now = readAge_.isValid() ? readAtMs_ : QDateTime::currentMSecsSinceEpoch();
    HistoryChartFrame frame{resolution,
                            (now - rangeSeconds(range_) * 1000) / bucketMs,
                            now / bucketMs,
                            size,
                            scale,
                            text,
                            readAge_.isValid() ? Tarvel::localized("No history for this range yet") : QString()};
    return drawHistoryChart(series_, frame);
}

void MenuHistoryGraph::startRead()
{
    ++pendingReads_;
    const int generation = generation_;
    QPointer<MenuHistoryGraph> self(this);
    reader_.read(moduleKey_, rangeResolution(range_), rangeSeconds(range_),
                 [self, generation](const QList<SeriesHistory>& series) {
                     if (self == nullptr || self->generation_ != generation)
                         return;
                     self->pendingReads_ = 0;
                     self->series_ = series;
                     self->readAtMs_ = QDateTime::currentMSecsSinceEpoch();
                     self->readAge_.start();
                     Q_EMIT self->changed();
                 });
}
