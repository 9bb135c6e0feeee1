// Machine identity from procfs and sysfs: host name, DMI strings, device tree, processor.
#pragma once

#include "collect/linux/sys_root.h"
#include "collect/machine_source.h"

class LinuxMachineSource final : public MachineSource {
public:
    explicit LinuxMachineSource(const SysRoot& root);

    std::optional<std::string> hostName() override;
    std::optional<std::string> systemVendor() override;
    std::optional<std::string> productName() override;
    std::optional<std::string> productVersion() override;
    std::optional<std::string> productSerial() override;
    std::optional<std::string> deviceTreeModel() override;
    std::optional<std::string> processorModelName() override;
    std::optional<std::uint64_t> maxFrequencyKHz() override;
    std::optional<std::string> architecture() override;
    bool hypervisorPresent() override;

private:
    SysRoot root_;
};
