// Interface kinds, link words, hardware addresses and the base and status tables.
#include "collect/network_base_builder.h"

#include <array>
#include <charconv>

namespace {

// Link types of <linux/if_arp.h>, spelled out so that the rules build on every system.
constexpr std::int64_t kArphrdPpp = 512;
constexpr std::int64_t kArphrdTunnel = 768;
constexpr std::int64_t kArphrdTunnel6 = 769;
constexpr std::int64_t kArphrdLoopback = 772;
constexpr std::int64_t kArphrdSit = 776;
constexpr std::int64_t kArphrdIpGre = 778;
constexpr std::int64_t kArphrdIeee80211 = 801;
constexpr std::int64_t kArphrdIeee80211Radiotap = 803;
constexpr std::int64_t kArphrdIp6Gre = 823;
constexpr std::int64_t kArphrdNone = 65534; // tun and WireGuard: no link layer at all
constexpr std::uint64_t kIffLoopback = 0x8;

bool isTunnelLink(std::int64_t type)
{
    switch (type) {
    case kArphrdPpp:
    case kArphrdTunnel:
    case kArphrdTunnel6:
    case kArphrdSit:
    case kArphrdIpGre:
    case kArphrdIp6Gre:
    case kArphrdNone:
        return true;
    default:
        return false;
    }
}

std::optional<QString> text(const std::optional<std::string>& value)
{
    return value ? std::optional(QString::fromStdString(*value)) : std::nullopt;
}

} // namespace

QString linkStatusFromOperState(const std::optional<std::string>& operState)
{
    if (operState == "up")
        return QStringLiteral("Active");
    if (operState == "down" || operState == "dormant")
        return QStringLiteral("Inactive");
    return QStringLiteral("Unknown");
}

QString interfaceType(const NetworkInterface& itf)
{
    const std::int64_t type = itf.type.value_or(-1);
    if (type == kArphrdLoopback || (itf.flags.value_or(0) & kIffLoopback) != 0)
        return QStringLiteral("Loopback");
    if (itf.wireless || itf.devType == "wlan" || (type >= kArphrdIeee80211 && type <= kArphrdIeee80211Radiotap))
        return QStringLiteral("Wi-Fi");
    if (itf.bridge || itf.devType == "bridge")
        return QStringLiteral("Bridge");
    if (isTunnelLink(type) || itf.devType == "wireguard")
        return QStringLiteral("Tunnel");
    if (!itf.hasDevice)
        return QStringLiteral("Virtual");
    return QStringLiteral("Ethernet");
}

std::optional<QString> macAddressText(const std::optional<std::string>& address)
{
    if (!address)
        return std::nullopt;
    std::array<unsigned, 6> bytes{};
    std::string_view rest = *address;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto colon = rest.find(':');
        const std::string_view part = rest.substr(0, colon);
        const auto [stop, error] = std::from_chars(part.data(), part.data() + part.size(), bytes[i], 16);
        if (error != std::errc() || stop != part.data() + part.size() || part.empty() || part.size() > 2)
            return std::nullopt;
        // Exactly six parts: a colon after each but the last.
        if ((colon == std::string_view::npos) != (i + 1 == bytes.size()))
            return std::nullopt;
        rest = colon == std::string_view::npos ? std::string_view() : rest.substr(colon + 1);
    }
    if (bytes == std::array<unsigned, 6>{})
        return std::nullopt;
    return QString::asprintf("%02X:%02X:%02X:%02X:%02X:%02X", bytes[0], bytes[1], bytes[2], bytes[3], bytes[4],
                             bytes[5]);
}

NetworkAddresses addressTable(const std::vector<InterfaceAddress>& addresses)
{
    NetworkAddresses table;
    for (const InterfaceAddress& address : addresses) {
        InterfaceAddresses& entry = table[address.interface];
        (address.ipv6 ? entry.ipv6 : entry.ipv4) = QString::fromStdString(address.text);
    }
    return table;
}

NetworkBase buildNetworkBase(const std::vector<NetworkInterface>& interfaces, const NetworkAddresses& addresses)
{
    NetworkBase base;
    for (const NetworkInterface& itf : interfaces) {
        NetworkBaseEntry entry;
        const QString name = QString::fromStdString(itf.model.value_or(itf.name));
        entry.itf = InterfaceIdentity{name, interfaceType(itf)};
        if (const auto found = addresses.find(itf.name); found != addresses.end())
            entry.ip = found->second;
        NicFacts nic;
        nic.linkstatus = linkStatusFromOperState(itf.operState);
        if (itf.speedMbps)
            nic.speed = *itf.speedMbps * 1'000'000;
        nic.vendor = text(itf.vendor);
        nic.model = text(itf.model);
        nic.macaddr = macAddressText(itf.address);
        entry.nic = std::move(nic);
        base.insert_or_assign(itf.name, std::move(entry));
    }
    return base;
}

InterfaceStatusTable interfaceStatusTable(const std::vector<LinkState>& links, const NetworkAddresses& addresses)
{
    InterfaceStatusTable table;
    for (const LinkState& link : links) {
        if (!link.operState)
            continue;
        InterfaceStatus status{linkStatusFromOperState(link.operState), std::nullopt};
        if (const auto found = addresses.find(link.name); found != addresses.end())
            status.ip = found->second;
        table.insert_or_assign(link.name, std::move(status));
    }
    return table;
}
