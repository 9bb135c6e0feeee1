// Source of network facts: the interfaces, their addresses and their cumulative traffic counters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What the system tells about one interface; each attribute is empty when it cannot be read
// (a link that is down, for example, has no speed).
struct NetworkInterface {
    std::string name;
    std::optional<std::string> operState; // "up", "down", "unknown", ...
    std::optional<std::int64_t> speedMbps;
    std::optional<std::string> address; // hardware address as the system prints it
    std::optional<std::int64_t> type;   // ARPHRD_* link type
    std::optional<std::uint64_t> flags; // IFF_* flags
    std::optional<bool> carrier;
    std::optional<std::string> devType; // the driver's kind of device: "wlan", "bridge", ...
    bool wireless = false;              // has a wireless extension or a radio
    bool bridge = false;                // is a bridge master
    bool hasDevice = false;             // backed by a bus device, not purely virtual
    std::optional<std::string> vendor;  // the device's names in the hardware database
    std::optional<std::string> model;
};

struct InterfaceCounters {
    std::string name;
    std::uint64_t receivedBytes = 0;
    std::uint64_t receivedPackets = 0;
    std::uint64_t sentBytes = 0;
    std::uint64_t sentPackets = 0;
};

// One address of an interface, as text.
struct InterfaceAddress {
    std::string interface;
    bool ipv6 = false;
    std::string text;
};

// The part of an interface that is looked at every tick.
struct LinkState {
    std::string name;
    std::optional<std::string> operState;
};

// A second look at one interface whose row was missing from the traffic table.
struct InterfaceRecheck {
    bool listedAndUp = false;
    std::optional<InterfaceCounters> counters; // read another way, when that works
};

class NetworkSource {
public:
    virtual ~NetworkSource() = default;
    virtual std::optional<std::vector<NetworkInterface>> interfaces() = 0;
    // Counters since boot for every interface, loopback included.
    virtual std::optional<std::vector<InterfaceCounters>> counters() = 0;
    // Names and link states only: cheap enough for every tick.
    virtual std::optional<std::vector<LinkState>> linkStates() = 0;
    // Every address of every interface, in the system's order; empty when they cannot be listed.
    virtual std::optional<std::vector<InterfaceAddress>> addresses() = 0;
    virtual InterfaceRecheck recheck(const std::string& name) = 0;
    // False only when links and addresses are known to be as at the previous call; a source that
    // cannot tell answers true, and the caller looks for itself. Never blocks.
    virtual bool linksMayHaveChanged() { return true; }
};
