// Lists interfaces from sysfs (read when asked) and reads traffic from a kept-open /proc/net/dev.
#include "collect/linux/linux_network_source.h"

#include "collect/linux/directory_names.h"
#include "collect/linux/net_dev_parser.h"
#include "collect/linux/sysfs_attribute.h"

LinuxNetworkSource::LinuxNetworkSource(const SysRoot& root)
    : root_(root), netDev_(root.join("proc/net/dev"))
{
}

std::optional<std::vector<NetworkInterface>> LinuxNetworkSource::interfaces()
{
    const std::filesystem::path classNet = root_.join("sys/class/net");
    const auto names = directoryNames(classNet);
    if (!names)
        return std::nullopt;
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
        result.push_back(std::move(itf));
    }
    return result;
}

std::optional<std::vector<InterfaceCounters>> LinuxNetworkSource::counters()
{
    const std::lock_guard guard(lock_);
    const auto text = netDev_.read();
    return text ? parseNetDev(*text) : std::nullopt;
}
