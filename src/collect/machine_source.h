// Source of facts that identify the machine: names, firmware strings, processor model.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

class MachineSource {
public:
    virtual ~MachineSource() = default;
    virtual std::optional<std::string> hostName() = 0;
    // Firmware identity; each is empty when the firmware leaves it blank or it is not readable.
    virtual std::optional<std::string> systemVendor() = 0;
    virtual std::optional<std::string> productName() = 0;
    virtual std::optional<std::string> productVersion() = 0;
    virtual std::optional<std::string> productSerial() = 0;
    // The board model of machines described by a device tree (most ARM boards).
    virtual std::optional<std::string> deviceTreeModel() = 0;
    virtual std::optional<std::string> processorModelName() = 0;
    virtual std::optional<std::uint64_t> maxFrequencyKHz() = 0;
    // The kernel's machine name, such as "x86_64" or "aarch64".
    virtual std::optional<std::string> architecture() { return std::nullopt; }
    // True when the processor reports that it runs under a hypervisor.
    virtual bool hypervisorPresent() { return false; }
};
