// The CPU module: its settings, its step of the sampling cycle and its parts.
#include "collect/load_system_information.h"
#include "modules/cpu/cpu_module_picture.h"
#include "modules/cpu/cpu_snapshot.h"
#include "modules/cpu/cpu_usage_text.h"
#include "modules/module_descriptor.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/localization.h"

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveCpu(ModuleDefaults& d, SettingsStore&, const QVariantMap& theme, ModuleSchemaList)
{
    // The single figure is drawn a point larger than the user/system pair.
    PrefMeasure m = PrefMeasure::fromTheme(theme);
    m.size += d.boolValue(Cpu_Text_DisplayAverage) ? 1.0 : 0.0;
    d.set(CpuInnerTextWidth, m.floorWidth(QStringLiteral("188%")));
}

ModuleSchema cpuSchema()
{
    return {ModuleId::Cpu,
            "CPU",
            LaunchCpus,
            1,
            "CpuModuleNotif",
            Tarvel::textKey("CPU"),
            Cpu_UpdateInterval,
            withToolItems({{CpuItemSortArray, T::Array, ints({1, 2, 3, 4})},
                           {Cpu_Display_Graph, T::Bool, true},
                           {Cpu_Display_LevelBar, T::Bool, false},
                           {Cpu_Display_CircleMeter, T::Bool, false},
                           {Cpu_Display_Text, T::Bool, true},
                           {Cpu_UpdateInterval, T::TruncatedInteger, 2, kIntervalRange},
                           // 3, where every other module starts at 30: a narrow graph by design.
                           {Cpu_GraphWidth, T::TruncatedInteger, 3, kGraphWidthRange},
                           {Cpu_AverageMultiProcessors, T::Bool, true},
                           {Cpu_Text_DisplayAverage, T::Bool, false},
                           {CPU_GraphAsLine, T::Bool, false},
                           {CPU_LineAsBold, T::Bool, false},
                           {Cpu_ShowMyLabel, T::Bool, QVariant()}},
                          CPU_EnaMenu_Amon, CPU_EnaMenu_Cnsl, CPU_EnaMenu_Tmnl),
            colors({"A01", "A02", "A03", "A04", "A05", "A06", "A07"}),
            sharedPictures("L01", {}),
            {Cpu_Display_Graph, Cpu_Display_LevelBar, Cpu_Display_CircleMeter, Cpu_Display_Text},
            &deriveCpu};
}

void sampleCpu(const SampleRequest& request, InfoDict& info)
{
    CpuSample sample = request.loadInfo.loadCpuData();
    if (!sample.empty())
        appendSample(request, info, std::move(sample));
}

// The whole machine's share, the last record of the newest sample.
QString cpuBarLine(const SnapshotContext& context, const SettingsStore&)
{
    const History<CpuSample> history = context.info.history<CpuSample>(context.slot);
    if (history.empty() || history.back().empty())
        return {};
    return cpuUsageText(history.back().back());
}

} // namespace

const ModuleDescriptor& cpuModule()
{
    static const ModuleDescriptor descriptor{cpuSchema(),
                                             &sampleCpu,
                                             true, // the graph fills from the first cycle on
                                             StorageUse::None,
                                             &makeSnapshot<CpuSnapshot>,
                                             nullptr,
                                             &cpuBarLine,
                                             &makePicture<CpuModulePicture>};
    return descriptor;
}
