// Turns kernel counters, which restart when a device or interface comes back, into counters
// that only ever grow.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <map>

class CounterKeeper {
public:
    // The exported sum for key after the kernel reported raw. The first report is taken as it
    // stands (a counter since boot); a report below the previous one is a restart of the kernel
    // figure, which then counts on from the sum.
    double observe(const QByteArray& key, std::uint64_t raw);
    // Adds a difference the collector has already worked out (CPU ticks).
    double add(const QByteArray& key, double difference);

private:
    struct Counter {
        std::uint64_t lastRaw = 0;
        double sum = 0;
    };
    std::map<QByteArray, Counter> counters_;
};
