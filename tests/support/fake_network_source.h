// A network source the test sets up field by field: interfaces, traffic rows, addresses.
#pragma once

#include "collect/network_source.h"

#include <map>

class FakeNetworkSource final : public NetworkSource {
public:
    std::vector<NetworkInterface> listed;
    std::optional<std::vector<InterfaceCounters>> rows = std::vector<InterfaceCounters>{};
    std::vector<InterfaceAddress> addressList;
    std::map<std::string, InterfaceRecheck> secondLook; // unlisted names: gone
    bool announced = true;                              // the system says links may have changed

    std::optional<std::vector<NetworkInterface>> interfaces() override { return listed; }
    std::optional<std::vector<InterfaceCounters>> counters() override { return rows; }
    std::optional<std::vector<LinkState>> linkStates() override
    {
        std::vector<LinkState> links;
        for (const NetworkInterface& itf : listed)
            links.push_back({itf.name, itf.operState});
        return links;
    }
    std::optional<std::vector<InterfaceAddress>> addresses() override { return addressList; }
    bool linksMayHaveChanged() override { return announced; }
    InterfaceRecheck recheck(const std::string& name) override
    {
        const auto it = secondLook.find(name);
        return it == secondLook.end() ? InterfaceRecheck{} : it->second;
    }

    // A wired interface with a bus device, as the listing reports one.
    static NetworkInterface wired(std::string name, std::string operState)
    {
        NetworkInterface itf;
        itf.name = std::move(name);
        itf.operState = std::move(operState);
        itf.type = 1;
        itf.hasDevice = true;
        return itf;
    }
};
