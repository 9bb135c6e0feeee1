// The brand comes from the processor's own model string; the clock from its frequency limit.
#include "collect/cpu_brand.h"

#include "collect/load_system_information.h"

#include <QStringList>

QString cleanBrandName(const QString& brand)
{
    QString text = brand;
    for (const char* noise : {"\n", "(R)", "(TM)", "CPU", "@"})
        text.remove(QLatin1String(noise));
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts).join(QLatin1Char(' ')).trimmed();
}

QString formatRareName(const QString& machine, std::uint64_t hertz)
{
    const bool giga = hertz > 1000000000u;
    const std::uint64_t clock = hertz / (giga ? 1000000000u : 1000000u);
    return QStringLiteral("%1 %2%3Hz")
        .arg(machine)
        .arg(clock, 2, 10, QLatin1Char('0'))
        .arg(giga ? QLatin1Char('G') : QLatin1Char('M'));
}

QString LoadSystemInformation::cpuGetBrandNameNew(MachineSource& machine)
{
    const auto model = machine.processorModelName();
    return model ? cleanBrandName(QString::fromStdString(*model)) : QString();
}

std::optional<QString> LoadSystemInformation::cpuGetRareNameNew(MachineSource& machine)
{
    const auto architecture = machine.architecture();
    const auto kiloHertz = machine.maxFrequencyKHz();
    if (!architecture || !kiloHertz)
        return std::nullopt;
    return formatRareName(QString::fromStdString(*architecture), *kiloHertz * 1000u);
}
