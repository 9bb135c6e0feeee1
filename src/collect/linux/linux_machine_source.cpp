// Reads the identity files when asked; they are read rarely, so nothing is kept open.
#include "collect/linux/linux_machine_source.h"

#include "collect/linux/cpu_architecture_parser.h"
#include "collect/linux/cpuinfo_parser.h"
#include "collect/linux/proc_file.h"
#include "collect/linux/sysfs_attribute.h"

#include <sys/utsname.h>

#include <filesystem>
#include <system_error>

LinuxMachineSource::LinuxMachineSource(const SysRoot& root) : root_(root) {}

std::optional<std::string> LinuxMachineSource::hostName()
{
    return readAttributeText(root_.join("proc/sys/kernel/hostname"));
}

std::optional<std::string> LinuxMachineSource::systemVendor()
{
    return readAttributeText(root_.join("sys/class/dmi/id/sys_vendor"));
}

std::optional<std::string> LinuxMachineSource::productName()
{
    return readAttributeText(root_.join("sys/class/dmi/id/product_name"));
}

std::optional<std::string> LinuxMachineSource::productVersion()
{
    return readAttributeText(root_.join("sys/class/dmi/id/product_version"));
}

std::optional<std::string> LinuxMachineSource::productSerial()
{
    // Readable by root only on most systems.
    return readAttributeText(root_.join("sys/class/dmi/id/product_serial"));
}

std::optional<std::string> LinuxMachineSource::deviceTreeModel()
{
    if (auto model = readAttributeText(root_.join("sys/firmware/devicetree/base/model")))
        return model;
    return readAttributeText(root_.join("proc/device-tree/model"));
}

std::optional<std::string> LinuxMachineSource::processorModelName()
{
    const auto text = ProcFile::readOnce(root_.join("proc/cpuinfo"));
    return text ? parseFirstModelName(*text) : std::nullopt;
}

std::optional<std::uint64_t> LinuxMachineSource::maxFrequencyKHz()
{
    if (auto frequency = readAttributeUnsigned(root_.join("sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq")))
        return frequency;
    // cpu0/cpufreq is a link to the policy directory; reach it directly when the link is absent.
    return readAttributeUnsigned(root_.join("sys/devices/system/cpu/cpufreq/policy0/cpuinfo_max_freq"));
}

std::optional<std::string> LinuxMachineSource::architecture()
{
    const auto text = ProcFile::readOnce(root_.join("proc/cpuinfo"));
    if (auto found = text ? parseCpuArchitecture(*text) : std::nullopt)
        return found;
    // A captured tree must not borrow the running kernel's answer; only the live root may.
    std::error_code error;
    if (!std::filesystem::equivalent(root_.root(), "/", error))
        return std::nullopt;
    utsname names{};
    if (uname(&names) != 0 || names.machine[0] == '\0')
        return std::nullopt;
    return std::string(names.machine);
}

bool LinuxMachineSource::hypervisorPresent()
{
    const auto text = ProcFile::readOnce(root_.join("proc/cpuinfo"));
    return text && hasHypervisorFlag(*text);
}
