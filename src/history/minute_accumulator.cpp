// Folding sampled figures into per-minute count, sum, minimum and maximum.
#include "history/minute_accumulator.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

std::int64_t minuteOf(std::int64_t ms)
{
    constexpr std::int64_t kMinuteMs = 60'000;
    return ms >= 0 ? ms / kMinuteMs : -((-ms + kMinuteMs - 1) / kMinuteMs);
}

std::optional<MinuteBatch> MinuteAccumulator::add(const QList<Figure>& figures, std::int64_t nowMs)
{
    const std::int64_t minute = minuteOf(nowMs);
    std::optional<MinuteBatch> finished;
    // A clock set back keeps folding into the minute under way rather than rewriting the past.
    if (minute_ && minute > *minute_)
        finished = takeAll();
    if (!minute_)
        minute_ = minute;
    for (const Figure& figure : figures) {
        if (!std::isfinite(figure.value))
            continue;
        const std::int64_t stored = qRound64(figure.value * unitScale(figure.unit));
        auto [it, fresh] = entries_.try_emplace({figure.module, figure.series});
        MinuteEntry& entry = it->second;
        if (fresh) {
            entry = {figure.module, figure.series, figure.unit, 0, 0, stored, stored};
        }
        ++entry.count;
        entry.sum += stored;
        entry.min = std::min(entry.min, stored);
        entry.max = std::max(entry.max, stored);
    }
    return finished;
}

std::optional<MinuteBatch> MinuteAccumulator::takeAll()
{
    std::optional<MinuteBatch> batch;
    if (minute_ && !entries_.empty()) {
        batch = MinuteBatch{*minute_, {}};
        batch->entries.reserve(static_cast<qsizetype>(entries_.size()));
        for (auto& [key, entry] : entries_)
            batch->entries.append(std::move(entry));
    }
    entries_.clear();
    minute_.reset();
    return batch;
}
