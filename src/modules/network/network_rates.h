// Transfer rates from the Network history of cumulative byte counters.
#pragma once

#include "collect/history.h"
#include "collect/network_sample.h"
#include "prefs/module_defaults.h"

#include <QString>

#include <cstddef>

struct NetworkRates {
    double up = 0;   // bytes per second sent
    double down = 0; // bytes per second received

    bool operator==(const NetworkRates&) const = default;
};

// The growth from sample index - 1 to sample index over the seconds that sample covers; none for
// the first sample. A counter that went backwards (a reset, an interface gone) gives 0.
NetworkRates sampleRates(const History<NetworkSample>& history, std::size_t index);

// The rates of the newest sample.
NetworkRates currentNetworkRates(const History<NetworkSample>& history);

// Network_Text_Mode: 2 shows bits per second, anything else (1) bytes.
bool networkRatesInBits(const ModuleDefaults& myDefaults);
// Network_Limen_Base in bytes per second: rates below it are not traffic to the lamps and graph.
double networkLimenBytes(const ModuleDefaults& myDefaults);

// A rate as the picture's text shows it: four digits at most, in the chosen unit.
QString networkRateText(double bytesPerSecond, bool bits);
// "up 1.50KB/s  down 12.3KB/s", for front ends without pictures.
QString networkBarText(const NetworkRates& rates, bool bits);
