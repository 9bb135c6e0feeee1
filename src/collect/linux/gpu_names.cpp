// Display controllers from the PCI bus through libpci, which knows the PCI ID database.
#include "collect/load_system_information.h"

#include "collect/linux/sys_root.h"
#include "collect/linux/sysfs_attribute.h"

extern "C" {
#include <pci/pci.h>
}

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

namespace {
constexpr unsigned kDisplayClass = 0x03;

// libpci reports failures through a handler that must not return; unwinding back to the
// caller is the only way to keep the monitor running when the bus cannot be read.
struct PciFailure {};

[[noreturn]] void pciFailed(char*, ...)
{
    throw PciFailure{};
}

void pciQuiet(char*, ...) {}

QString deviceName(pci_access* access, const pci_dev* device)
{
    char buffer[256];
    if (const char* name = pci_lookup_name(access, buffer, sizeof buffer,
                                           PCI_LOOKUP_VENDOR | PCI_LOOKUP_DEVICE | PCI_LOOKUP_NO_NUMBERS,
                                           device->vendor_id, device->device_id))
        return QString::fromUtf8(name);
    return QStringLiteral("%1:%2")
        .arg(device->vendor_id, 4, 16, QLatin1Char('0'))
        .arg(device->device_id, 4, 16, QLatin1Char('0'));
}

// amdgpu publishes its video memory in the device folder; other drivers keep it to themselves.
void readVideoMemory(const std::filesystem::path& folder, GpuRecord& record)
{
    const auto total = readAttributeInteger(folder / "mem_info_vram_total");
    const auto used = readAttributeInteger(folder / "mem_info_vram_used");
    if (total && *total > 0)
        record.totlStr = QStringLiteral("%1MB").arg(static_cast<unsigned long long>(*total) >> 20);
    if (!total || !used || *used < 0 || *used > *total)
        return;
    record.totlLl = *total;
    record.usedLl = *used;
    record.freeLl = *total - *used;
    if (*total == 0)
        return;
    const auto percent = static_cast<int>(*used * 100 / *total);
    if (percent > 0)
        record.usedStr = QStringLiteral("%1%").arg(std::min(percent, 100));
}

std::vector<GpuRecord> scanDisplayDevices(pci_access* access, const std::filesystem::path& devices)
{
    std::vector<GpuRecord> records;
    pci_scan_bus(access);
    for (pci_dev* device = access->devices; device != nullptr; device = device->next) {
        pci_fill_info(device, PCI_FILL_IDENT | PCI_FILL_CLASS);
        if ((device->device_class >> 8) != kDisplayClass)
            continue;
        GpuRecord record;
        record.gpuName = QStringLiteral("Unknown Device");
        if (device->vendor_id != 0xffff)
            record.gpuName = deviceName(access, device);
        char slot[32];
        std::snprintf(slot, sizeof slot, "%04x:%02x:%02x.%d", device->domain, device->bus, device->dev, device->func);
        readVideoMemory(devices / slot, record);
        records.push_back(std::move(record));
    }
    return records;
}
} // namespace

std::optional<std::vector<GpuRecord>> LoadSystemInformation::getGpuNames(const std::filesystem::path& root)
{
    const std::filesystem::path bus = SysRoot(root).join("sys/bus/pci");
    std::error_code error;
    if (!std::filesystem::is_directory(bus / "devices", error))
        return std::nullopt;

    pci_access* access = pci_alloc();
    if (access == nullptr)
        return std::nullopt;
    access->error = pciFailed;
    access->warning = pciQuiet;
    access->debug = pciQuiet;
    // Only the sysfs method reads below a chosen folder, which keeps captured trees usable.
    access->method = PCI_ACCESS_SYS_BUS_PCI;
    std::string param = "sysfs.path";
    std::string path = bus.string();
    std::optional<std::vector<GpuRecord>> result;
    try {
        pci_set_param(access, param.data(), path.data());
        pci_init(access);
        result = scanDisplayDevices(access, bus / "devices");
    } catch (const PciFailure&) {
        result.reset();
    }
    pci_cleanup(access);
    return result;
}
