// Monotonic sums over restarting counters.
#include "export/counter_keeper.h"

double CounterKeeper::observe(const QByteArray& key, std::uint64_t raw)
{
    const auto [it, added] = counters_.try_emplace(key);
    Counter& counter = it->second;
    if (added)
        counter.sum = static_cast<double>(raw);
    else if (raw >= counter.lastRaw)
        counter.sum += static_cast<double>(raw - counter.lastRaw);
    else
        counter.sum += static_cast<double>(raw);
    counter.lastRaw = raw;
    return counter.sum;
}

double CounterKeeper::add(const QByteArray& key, double difference)
{
    Counter& counter = counters_[key];
    if (difference > 0)
        counter.sum += difference;
    return counter.sum;
}
