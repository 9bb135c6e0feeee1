// The network collectors: addresses, the interface base, the traffic sample and the change check.
#include "collect/load_system_information.h"

#include "collect/collect_log.h"

#include <algorithm>
#include <limits>

namespace {

std::int64_t clamped(std::uint64_t value)
{
    return static_cast<std::int64_t>(std::min<std::uint64_t>(value, std::numeric_limits<std::int64_t>::max()));
}

InterfacePackets packetsOf(const InterfaceCounters& row)
{
    return {row.name, clamped(row.sentPackets), clamped(row.receivedPackets)};
}

} // namespace

NetworkAddresses LoadSystemInformation::retIpAdress()
{
    const auto addresses = sources_.network ? sources_.network->addresses() : std::nullopt;
    return addresses ? addressTable(*addresses) : NetworkAddresses{};
}

NetworkBase LoadSystemInformation::retNetworkBase()
{
    const auto interfaces = sources_.network ? sources_.network->interfaces() : std::nullopt;
    return interfaces ? buildNetworkBase(*interfaces, retIpAdress()) : NetworkBase{};
}

std::optional<NetworkSample> LoadSystemInformation::loadNetworkData(double interval, const NetworkBase& base)
{
    NetworkSource* network = sources_.network.get();
    if (!network)
        return std::nullopt;
    const auto rows = network->counters();
    if (!rows)
        return std::nullopt;

    NetworkSample sample;
    sample.interval = interval;
    // Summed unsigned so that the counters wrap together, as the kernel's do.
    std::uint64_t sent = 0;
    std::uint64_t received = 0;
    for (const InterfaceCounters& row : *rows) {
        sent += row.sentBytes;
        received += row.receivedBytes;
    }
    sample.toUp = static_cast<std::int64_t>(sent);
    sample.toDw = static_cast<std::int64_t>(received);

    for (const auto& [name, entry] : base) {
        if (!entry.nic || entry.nic->linkstatus != QLatin1String("Active"))
            continue;
        const auto row =
            std::find_if(rows->begin(), rows->end(), [&wanted = name](const auto& r) { return r.name == wanted; });
        if (row != rows->end()) {
            sample.packets.push_back(packetsOf(*row));
            continue;
        }
        // An adapter pulled or a tunnel closed since the base was built is a race, not a fault.
        const InterfaceRecheck again = network->recheck(name);
        if (!again.listedAndUp)
            continue;
        if (again.counters) {
            sample.packets.push_back(packetsOf(*again.counters));
            continue;
        }
        qCWarning(lcCollect) << "the counters of the active interface" << name.c_str()
                             << "cannot be read; the traffic figures cannot be trusted any longer";
        terminationRequested_ = true;
        break;
    }
    return sample;
}

bool LoadSystemInformation::checkInterfaceStatusChange()
{
    // Asked every tick: the full look (every link and address) only when something was announced.
    const bool announced = !sources_.network || sources_.network->linksMayHaveChanged();
    {
        const std::lock_guard guard(netIncLock);
        if (netIncKnown && !announced)
            return true;
    }
    const auto links = sources_.network ? sources_.network->linkStates() : std::nullopt;
    InterfaceStatusTable fresh = links ? interfaceStatusTable(*links, retIpAdress()) : InterfaceStatusTable{};
    const std::lock_guard guard(netIncLock);
    netIncKnown = true;
    if (fresh == netIncDict)
        return true;
    netIncDict = std::move(fresh);
    return false;
}

void LoadSystemInformation::clearInterfaceStatusChange()
{
    const std::lock_guard guard(netIncLock);
    netIncDict.clear();
    netIncKnown = false;
}

std::shared_ptr<const NetworkBase> LoadSystemInformation::networkBaseDict() const
{
    const std::lock_guard guard(networkBaseLock);
    return networkBase_;
}

void LoadSystemInformation::setNetworkBaseDict(NetworkBase base)
{
    auto replacement = std::make_shared<const NetworkBase>(std::move(base));
    const std::lock_guard guard(networkBaseLock);
    networkBase_ = std::move(replacement);
}
