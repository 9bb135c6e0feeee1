// The network sample of one tick: cumulative traffic and the packet counts of active interfaces.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Packets since boot of one interface whose link is "Active".
struct InterfacePackets {
    std::string name;
    std::int64_t up = 0; // "<name>_up": packets sent
    std::int64_t dw = 0; // "<name>_dw": packets received

    bool operator==(const InterfacePackets&) const = default;
};

// Counters since boot, never differences: the figures shown are derived from the history
// (TvlClasses::getNetworkDetail). The byte sums are of unsigned 64-bit counters, kept in a
// signed number as they wrap.
struct NetworkSample {
    std::int64_t toUp = 0; // "to_up": bytes sent by every interface, loopback included
    std::int64_t toDw = 0; // "to_dw": bytes received likewise
    double interval = 0;   // "int": seconds this sample covers, the module's update interval
    std::vector<InterfacePackets> packets;

    // The packet counts of one interface; null when it was not active in this sample.
    [[nodiscard]] const InterfacePackets* packetsOf(std::string_view name) const
    {
        const auto it = std::find_if(packets.begin(), packets.end(), [&](const auto& p) { return p.name == name; });
        return it == packets.end() ? nullptr : &*it;
    }

    bool operator==(const NetworkSample&) const = default;
};
