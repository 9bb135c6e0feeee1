// Firmware strings are filled in by board makers, so many carry template text; such values
// are treated as absent rather than shown as the machine's name.
#include "collect/machine_details.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {
constexpr std::array<const char*, 17> kPlaceholders = {"to be filled by o.e.m.",
                                                       "system product name",
                                                       "system manufacturer",
                                                       "system version",
                                                       "system name",
                                                       "default string",
                                                       "not applicable",
                                                       "not specified",
                                                       "not available",
                                                       "none",
                                                       "o.e.m.",
                                                       "oem",
                                                       "unknown",
                                                       "invalid",
                                                       "0123456789",
                                                       "x.x",
                                                       "type1productconfigid"};

// Fragments of the product or vendor strings that hypervisors put in their virtual firmware.
constexpr std::array<const char*, 11> kVirtualBoards = {
    "kvm",   "virtualbox", "innotek",   "vmware", "virtual machine", "qemu", "standard pc (",
    "bochs", "hvm domu",   "parallels", "bhyve"};

std::optional<QString> meaningful(const std::optional<std::string>& value)
{
    if (!value)
        return std::nullopt;
    const QString text = QString::fromStdString(*value).simplified();
    const QString lower = text.toLower();
    for (const char* placeholder : kPlaceholders) {
        if (lower == QLatin1String(placeholder))
            return std::nullopt;
    }
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

// "Dell Inc." names its machines "Dell ...", "ASUSTeK COMPUTER INC." as "ASUSTeK ...".
QString makerWord(const QString& vendor)
{
    QString word = vendor.section(QLatin1Char(' '), 0, 0);
    while (word.endsWith(QLatin1Char(',')) || word.endsWith(QLatin1Char('.')))
        word.chop(1);
    return word;
}

// Some makers keep a code in the product name and the marketing name in the version
// (ThinkPads: "20HRCTO1WW" and "ThinkPad X1 Carbon 5th").
bool versionIsTheName(const QString& product, const std::optional<QString>& version)
{
    if (!version || product.contains(QLatin1Char(' ')) || !version->contains(QLatin1Char(' ')))
        return false;
    return std::any_of(version->begin(), version->end(), [](QChar c) { return c.isLetter(); });
}
} // namespace

std::optional<QString> machineRawName(MachineSource& machine)
{
    if (const auto product = meaningful(machine.productName())) {
        QStringList parts;
        for (const auto& part : {meaningful(machine.systemVendor()), product, meaningful(machine.productVersion())}) {
            // Makers often repeat themselves ("HP" / "HP EliteBook 840 G5").
            if (part && !parts.join(QLatin1Char(' ')).contains(*part, Qt::CaseInsensitive))
                parts.append(*part);
        }
        return parts.join(QLatin1Char(' '));
    }
    if (auto model = meaningful(machine.deviceTreeModel()))
        return model;
    return meaningful(machine.architecture());
}

std::optional<QString> machineReadableName(MachineSource& machine)
{
    if (const auto product = meaningful(machine.productName())) {
        const auto version = meaningful(machine.productVersion());
        const QString name = versionIsTheName(*product, version) ? *version : *product;
        const auto vendor = meaningful(machine.systemVendor());
        const QString maker = vendor ? makerWord(*vendor) : QString();
        if (maker.isEmpty() || name.startsWith(maker, Qt::CaseInsensitive))
            return name;
        return maker + QLatin1Char(' ') + name;
    }
    return meaningful(machine.deviceTreeModel());
}

bool machineLooksVirtual(MachineSource& machine)
{
    if (machine.hypervisorPresent())
        return true;
    const QString firmware = (QString::fromStdString(machine.systemVendor().value_or("")) + QLatin1Char('\n') +
                              QString::fromStdString(machine.productName().value_or("")))
                                 .toLower();
    if (firmware.startsWith(QLatin1String("xen\n")))
        return true;
    return std::any_of(kVirtualBoards.begin(), kVirtualBoards.end(),
                       [&](const char* board) { return firmware.contains(QLatin1String(board)); });
}

MachineFacts machineFacts(MachineSource& machine)
{
    return {machineRawName(machine), machineReadableName(machine), machineLooksVirtual(machine)};
}
