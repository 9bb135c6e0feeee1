// The rules that turn what the system tells about interfaces into the Network module's records.
#pragma once

#include "collect/network_base.h"
#include "collect/network_source.h"

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

// "up" is "Active"; "down" and "dormant" (waiting for authentication, say) are "Inactive";
// anything else, loopback's "unknown" included, is "Unknown".
QString linkStatusFromOperState(const std::optional<std::string>& operState);

// Loopback, Wi-Fi, bridge and tunnel by what the kernel says the link is; then "Virtual" for an
// interface without a bus device behind it (veth, vlan, bond, tap, dummy), else "Ethernet".
QString interfaceType(const NetworkInterface& itf);

// Six colon-separated bytes in upper-case hexadecimal; absent for any other length and for the
// all-zero address loopback carries.
std::optional<QString> macAddressText(const std::optional<std::string>& address);

// The last address of each family wins, one per family and interface.
NetworkAddresses addressTable(const std::vector<InterfaceAddress>& addresses);

NetworkBase buildNetworkBase(const std::vector<NetworkInterface>& interfaces, const NetworkAddresses& addresses);

// What the change check compares from tick to tick: the link status and addresses per interface.
struct InterfaceStatus {
    QString linkstatus;
    std::optional<InterfaceAddresses> ip;

    bool operator==(const InterfaceStatus&) const = default;
};
using InterfaceStatusTable = std::map<std::string, InterfaceStatus>;

// Interfaces without a readable link state are left out: beside the interfaces the listing holds
// control files such as bonding_masters.
InterfaceStatusTable interfaceStatusTable(const std::vector<LinkState>& links, const NetworkAddresses& addresses);
