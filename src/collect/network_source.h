// Source of network facts: the interfaces and their cumulative traffic counters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What the system tells about one interface; each attribute is empty when it cannot be read
// (a link that is down, for example, has no speed).
struct NetworkInterface {
    std::string name;
    std::optional<std::string> operState;  // "up", "down", "unknown", ...
    std::optional<std::int64_t> speedMbps;
    std::optional<std::string> address;    // hardware address as the system prints it
    std::optional<std::int64_t> type;      // ARPHRD_* link type
    std::optional<std::uint64_t> flags;    // IFF_* flags
    std::optional<bool> carrier;
};

struct InterfaceCounters {
    std::string name;
    std::uint64_t receivedBytes = 0;
    std::uint64_t receivedPackets = 0;
    std::uint64_t sentBytes = 0;
    std::uint64_t sentPackets = 0;
};

class NetworkSource {
public:
    virtual ~NetworkSource() = default;
    virtual std::optional<std::vector<NetworkInterface>> interfaces() = 0;
    // Counters since boot for every interface, loopback included.
    virtual std::optional<std::vector<InterfaceCounters>> counters() = 0;
};
