// Reads the machine's processor and graphics facts for the CPU panel and the snapshot.
#include "modules/cpu/cpu_panel_facts.h"

#include "collect/load_system_information.h"
#include "toolkit/localization.h"

QString cpuKindText(LoadSystemInformation& loadInfo)
{
    QString brand;
    if (MachineSource* machine = loadInfo.sources().machine.get()) {
        brand = LoadSystemInformation::cpuGetBrandNameNew(*machine);
        if (brand.isEmpty())
            brand = LoadSystemInformation::cpuGetRareNameNew(*machine).value_or(QString());
    }
    const auto processors = loadInfo.processorCount();
    if (!processors)
        return brand.isEmpty() ? QStringLiteral("---") : brand;
    return Tarvel::localized("%@ %dcores")
        .replace(QLatin1String("%@"), brand)
        .replace(QLatin1String("%d"), QString::number(*processors));
}

QStringList gpuRowTexts(const LoadSystemInformation& loadInfo)
{
    const auto gpus = LoadSystemInformation::getGpuNames(loadInfo.sources().root).value_or(std::vector<GpuRecord>());
    QStringList rows;
    for (std::size_t i = 0; i < 2; ++i)
        rows << (i < gpus.size() ? QStringLiteral("%1 - %2").arg(gpus[i].gpuName, gpus[i].totlStr) : QStringLiteral("--"));
    return rows;
}
