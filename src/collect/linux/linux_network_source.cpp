// Lists interfaces from sysfs (read when asked) and reads traffic from a kept-open /proc/net/dev.
#include "collect/linux/linux_network_source.h"

#include "collect/linux/directory_names.h"
#include "collect/linux/net_dev_parser.h"
#include "collect/linux/rejected_text.h"
#include "collect/linux/sysfs_attribute.h"
#include "collect/linux/text_fields.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>

#include <algorithm>
#include <array>

namespace {

bool present(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error);
}

// DEVTYPE of the interface's uevent file: set by bridges, Wi-Fi, vlan, WireGuard and others.
std::optional<std::string> deviceType(const std::filesystem::path& dir)
{
    const auto uevent = ProcFile::readOnce(dir / "uevent");
    if (!uevent)
        return std::nullopt;
    std::string_view text = *uevent;
    std::string_view line;
    while (takeLine(text, line)) {
        if (line.starts_with("DEVTYPE="))
            return std::string(trimSpace(line.substr(8)));
    }
    return std::nullopt;
}

// Interface names come from the listing, but a name read elsewhere must not walk out of it.
bool plainName(std::string_view name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos;
}

} // namespace

LinuxNetworkSource::LinuxNetworkSource(const SysRoot& root)
    : root_(root)
    , netDev_(root.join("proc/net/dev"))
{
    if (root_.root() == "/")
        watch_ = std::make_unique<NetlinkWatch>();
}

bool LinuxNetworkSource::linksMayHaveChanged()
{
    return watch_ == nullptr || watch_->changed();
}

LinuxNetworkSource::~LinuxNetworkSource() = default;

std::optional<std::vector<NetworkInterface>> LinuxNetworkSource::interfaces()
{
    const std::filesystem::path classNet = root_.join("sys/class/net");
    const auto names = directoryNames(classNet);
    if (!names)
        return std::nullopt;
    const std::lock_guard guard(lock_);
    if (!hardware_)
        hardware_ = std::make_unique<HardwareDatabase>();
    std::vector<NetworkInterface> result;
    for (const std::string& name : *names) {
        const std::filesystem::path dir = classNet / name;
        // bonding_masters and similar control files sit beside the interface directories.
        std::error_code error;
        if (!std::filesystem::is_directory(dir, error))
            continue;
        NetworkInterface itf;
        itf.name = name;
        itf.operState = readAttributeText(dir / "operstate");
        // Reading the speed of a link that is down fails; -1 means the driver does not know.
        if (const auto speed = readAttributeInteger(dir / "speed"); speed && *speed >= 0)
            itf.speedMbps = speed;
        itf.address = readAttributeText(dir / "address");
        itf.type = readAttributeInteger(dir / "type");
        itf.flags = readAttributeUnsigned(dir / "flags");
        if (const auto carrier = readAttributeInteger(dir / "carrier"))
            itf.carrier = *carrier != 0;
        itf.devType = deviceType(dir);
        itf.wireless = present(dir / "wireless") || present(dir / "phy80211");
        itf.bridge = present(dir / "bridge");
        itf.hasDevice = present(dir / "device");
        if (const auto modalias = readAttributeText(dir / "device/modalias")) {
            HardwareNames known = hardware_->lookup(*modalias);
            itf.vendor = std::move(known.vendor);
            itf.model = std::move(known.model);
        }
        result.push_back(std::move(itf));
    }
    return result;
}

std::optional<std::vector<InterfaceCounters>> LinuxNetworkSource::counters()
{
    const std::lock_guard guard(lock_);
    const auto text = netDev_.read();
    return text ? acceptParsed(netDev_.path(), parseNetDev(*text)) : std::nullopt;
}

std::optional<std::vector<LinkState>> LinuxNetworkSource::linkStates()
{
    const std::filesystem::path classNet = root_.join("sys/class/net");
    const auto names = directoryNames(classNet);
    if (!names)
        return std::nullopt;
    const std::lock_guard guard(linkLock_);
    // Files of interfaces that went away are closed.
    std::erase_if(operStates_, [&](const auto& entry) {
        return std::find(names->begin(), names->end(), entry.first) == names->end();
    });
    std::vector<LinkState> links;
    links.reserve(names->size());
    for (const std::string& name : *names) {
        auto file = operStates_.find(name);
        if (file == operStates_.end())
            file = operStates_.emplace(name, ProcFile(classNet / name / "operstate")).first;
        LinkState link{name, std::nullopt};
        if (const auto text = file->second.read(); text && !trimSpace(*text).empty())
            link.operState = std::string(trimSpace(*text));
        links.push_back(std::move(link));
    }
    return links;
}

std::optional<std::vector<InterfaceAddress>> LinuxNetworkSource::addresses()
{
    std::vector<InterfaceAddress> result;
    if (root_.root() != "/")
        return result;
    ifaddrs* list = nullptr;
    if (::getifaddrs(&list) != 0)
        return std::nullopt;
    std::array<char, INET6_ADDRSTRLEN> text{};
    for (const ifaddrs* entry = list; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || !entry->ifa_name)
            continue;
        const int family = entry->ifa_addr->sa_family;
        const void* raw = nullptr;
        if (family == AF_INET)
            raw = &reinterpret_cast<const sockaddr_in*>(entry->ifa_addr)->sin_addr;
        else if (family == AF_INET6)
            raw = &reinterpret_cast<const sockaddr_in6*>(entry->ifa_addr)->sin6_addr;
        // The scope of a link-local address is left out on purpose: it is shown as plain text.
        if (!raw || !::inet_ntop(family, raw, text.data(), text.size()))
            continue;
        result.push_back({entry->ifa_name, family == AF_INET6, text.data()});
    }
    ::freeifaddrs(list);
    return result;
}

InterfaceRecheck LinuxNetworkSource::recheck(const std::string& name)
{
    InterfaceRecheck again;
    if (!plainName(name))
        return again;
    const std::filesystem::path dir = root_.join("sys/class/net") / name;
    again.listedAndUp = readAttributeText(dir / "operstate") == "up";
    if (!again.listedAndUp)
        return again;
    const auto receivedBytes = readAttributeUnsigned(dir / "statistics/rx_bytes");
    const auto receivedPackets = readAttributeUnsigned(dir / "statistics/rx_packets");
    const auto sentBytes = readAttributeUnsigned(dir / "statistics/tx_bytes");
    const auto sentPackets = readAttributeUnsigned(dir / "statistics/tx_packets");
    if (receivedBytes && receivedPackets && sentBytes && sentPackets)
        again.counters = InterfaceCounters{name, *receivedBytes, *receivedPackets, *sentBytes, *sentPackets};
    return again;
}
