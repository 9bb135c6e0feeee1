// The table of the figures an alert rule can watch.
#include "alerts/alert_figure.h"

#include "toolkit/localization.h"

#include <QString>

#include <algorithm>

namespace {

constexpr std::array<AlertFigureInfo, kAlertFigureCount> kFigures{{
    {AlertFigure::CpuBusy, "CpuBusy", ModuleId::Cpu, Tarvel::textKey("CPU busy"), "%", 90, true},
    {AlertFigure::MemoryUsed, "MemoryUsed", ModuleId::Memory, Tarvel::textKey("Memory in use"), "%", 90, true},
    {AlertFigure::SwapUsed, "SwapUsed", ModuleId::Memory, Tarvel::textKey("Swap in use"), "%", 50, true},
    {AlertFigure::NetworkDown, "NetworkDown", ModuleId::Network, Tarvel::textKey("Download rate"), "KB/s", 1, false},
    {AlertFigure::NetworkUp, "NetworkUp", ModuleId::Network, Tarvel::textKey("Upload rate"), "KB/s", 1024, true},
    {AlertFigure::DiskRead, "DiskRead", ModuleId::Disk, Tarvel::textKey("Disk read rate"), "KB/s", 102400, true},
    {AlertFigure::DiskWrite, "DiskWrite", ModuleId::Disk, Tarvel::textKey("Disk write rate"), "KB/s", 102400, true},
    {AlertFigure::VolumeFullest, "VolumeFullest", ModuleId::Volume, Tarvel::textKey("Fullest volume"), "%", 95, true},
    {AlertFigure::TempAverage, "TempAverage", ModuleId::Temp, Tarvel::textKey("Average temperature"), "\u00B0C", 85,
     true},
    {AlertFigure::TempHighest, "TempHighest", ModuleId::Temp, Tarvel::textKey("Highest temperature"), "\u00B0C", 90,
     true},
    {AlertFigure::FanFastest, "FanFastest", ModuleId::Fan, Tarvel::textKey("Fastest fan"), "rpm", 5000, true},
}};

// The table is indexed by the enumeration: the two must not drift apart.
constexpr bool tableInEnumOrder()
{
    for (std::size_t i = 0; i < kFigures.size(); ++i) {
        if (alertFigureIndex(kFigures[i].figure) != i)
            return false;
    }
    return true;
}
static_assert(tableInEnumOrder());

} // namespace

std::span<const AlertFigureInfo> alertFigures()
{
    return kFigures;
}

const AlertFigureInfo& alertFigureInfo(AlertFigure figure)
{
    return kFigures[alertFigureIndex(figure)];
}

std::optional<AlertFigure> alertFigureById(QStringView id)
{
    const auto it = std::find_if(kFigures.begin(), kFigures.end(),
                                 [id](const AlertFigureInfo& f) { return id == QLatin1String(f.id); });
    return it == kFigures.end() ? std::nullopt : std::optional(it->figure);
}

bool moduleHasAlertFigures(ModuleId module)
{
    return std::any_of(kFigures.begin(), kFigures.end(),
                       [module](const AlertFigureInfo& f) { return f.module == module; });
}
