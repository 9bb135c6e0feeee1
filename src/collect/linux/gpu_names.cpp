// Display controllers from the PCI devices in sysfs, named through libpci's PCI ID database.
#include "collect/load_system_information.h"

#include "collect/collect_log.h"
#include "collect/linux/sys_root.h"
#include "collect/linux/sysfs_attribute.h"

extern "C" {
#include <pci/pci.h>
}

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace {
constexpr unsigned kDisplayClass = 0x03;

void pciQuiet(char*, ...) {}

// libpci's fatal handler may not return, and an exception must not unwind through C (it leaks
// what libpci holds open). The bus is read here from sysfs, so libpci only looks names up, which
// never reports a fatal error; should one come anyway, it is told and the lookup goes on.
void pciFailed(char* format, ...)
{
    qCWarning(lcCollect) << "libpci:" << format;
}

QString deviceName(pci_access* access, int vendor, int device)
{
    char buffer[512];
    if (const char* name =
            pci_lookup_name(access, buffer, sizeof buffer,
                            PCI_LOOKUP_VENDOR | PCI_LOOKUP_DEVICE | PCI_LOOKUP_NO_NUMBERS, vendor, device))
        return QString::fromUtf8(name);
    return QStringLiteral("%1:%2").arg(vendor, 4, 16, QLatin1Char('0')).arg(device, 4, 16, QLatin1Char('0'));
}

// A sysfs attribute holding a hexadecimal number such as "0x030000".
std::optional<unsigned long> readHex(const std::filesystem::path& path)
{
    const std::optional<std::string> text = readAttributeText(path);
    if (!text)
        return std::nullopt;
    char* end = nullptr;
    errno = 0;
    const unsigned long value = std::strtoul(text->c_str(), &end, 16);
    if (errno != 0 || end == text->c_str())
        return std::nullopt;
    return value;
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
    std::vector<std::filesystem::path> folders;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(devices, error))
        folders.push_back(entry.path());
    std::sort(folders.begin(), folders.end());
    std::vector<GpuRecord> records;
    for (const std::filesystem::path& folder : folders) {
        // A device whose identity cannot be read is left out, not guessed.
        const auto deviceClass = readHex(folder / "class");
        const auto vendor = readHex(folder / "vendor");
        const auto device = readHex(folder / "device");
        if (!deviceClass || !vendor || !device || (*deviceClass >> 16) != kDisplayClass)
            continue;
        GpuRecord record;
        record.gpuName = QStringLiteral("Unknown Device");
        if (*vendor != 0xffff)
            record.gpuName = deviceName(access, static_cast<int>(*vendor & 0xffff), static_cast<int>(*device & 0xffff));
        readVideoMemory(folder, record);
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
    // libpci declares the handler as never returning; clang will not take one that may.
    access->error = reinterpret_cast<decltype(access->error)>(&pciFailed);
    access->warning = pciQuiet;
    access->debug = pciQuiet;
    std::vector<GpuRecord> result = scanDisplayDevices(access, bus / "devices");
    pci_cleanup(access);
    return result;
}
