// The rules that turn firmware and processor facts into the machine's names.
#pragma once

#include "collect/machine_source.h"

#include <QString>

#include <optional>

// The model identifier: firmware vendor, product and version, else the device-tree model,
// else the processor architecture; empty when none of them is known.
std::optional<QString> machineRawName(MachineSource& machine);

// A name a person recognises: the firmware's product name with its maker in front, or the
// device-tree model; empty when the firmware only holds placeholders.
std::optional<QString> machineReadableName(MachineSource& machine);

// Whether the firmware names a hypervisor's virtual board or the processor reports one.
bool machineLooksVirtual(MachineSource& machine);

// The three facts above in one read, for whoever keeps the machine's names.
struct MachineFacts {
    std::optional<QString> rawName;
    std::optional<QString> readableName;
    bool looksVirtual = false;
};
MachineFacts machineFacts(MachineSource& machine);
