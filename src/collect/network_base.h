// What the Network module knows about each interface, rebuilt whenever an interface changes.
#pragma once

#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

// "itf": how the interface is shown.
struct InterfaceIdentity {
    QString name; // the hardware's model name where the system knows it, else the interface name
    QString type; // "Ethernet", "Wi-Fi", "Loopback", "Bridge", "Tunnel" or "Virtual"

    bool operator==(const InterfaceIdentity&) const = default;
};

// "ip": one address per family; when an interface has several, the last one listed wins.
struct InterfaceAddresses {
    std::optional<QString> ipv4;
    std::optional<QString> ipv6; // link-local ones without their scope, as "fe80::1"

    bool operator==(const InterfaceAddresses&) const = default;
};

// "nic": the link and the hardware behind it.
struct NicFacts {
    QString linkstatus;                // "Active", "Inactive" or "Unknown"
    std::optional<std::int64_t> speed; // bits per second, when the driver knows it
    std::optional<QString> vendor;     // from the hardware database
    std::optional<QString> model;
    std::optional<QString> macaddr; // "A0:B1:C2:D3:E4:F5"

    bool operator==(const NicFacts&) const = default;
};

struct NetworkBaseEntry {
    std::optional<InterfaceIdentity> itf;
    std::optional<InterfaceAddresses> ip; // absent when the interface has no address
    std::optional<NicFacts> nic;

    bool operator==(const NetworkBaseEntry&) const = default;
};

// Keyed by interface name (eth0, wlp2s0, ...).
using NetworkBase = std::map<std::string, NetworkBaseEntry>;

// Interface name to its addresses, as retIpAdress lists them.
using NetworkAddresses = std::map<std::string, InterfaceAddresses>;
