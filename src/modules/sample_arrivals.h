// When a module's newest samples arrived, to tell how many seconds the newest one covers.
#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>

// For samples that record no span of their own (the Memory module's): while its menu is open a
// module is sampled every cycle, and on opening the first extra sample comes at any time within
// the interval. Cycles start on whole seconds, so the seconds between two arrivals, rounded,
// are the cycles the newest sample covers.
class SampleArrivals {
public:
    using Clock = std::chrono::steady_clock;

    // Each appended sample gives the history a new identity; anything else keeps it.
    void note(const void* historyIdentity, Clock::time_point now = Clock::now())
    {
        if (historyIdentity == identity_)
            return;
        identity_ = historyIdentity;
        previous_ = newest_;
        newest_ = now;
        seen_ = std::min(seen_ + 1, 2);
    }

    // Seconds between the two newest arrivals, at least 1; fallback until two were seen.
    double secondsBetweenNewest(double fallback) const
    {
        if (seen_ < 2)
            return fallback;
        const double seconds = std::chrono::duration<double>(newest_ - previous_).count();
        return std::max(1.0, std::round(seconds));
    }

private:
    const void* identity_ = nullptr;
    Clock::time_point previous_;
    Clock::time_point newest_;
    int seen_ = 0;
};
