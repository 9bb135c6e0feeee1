// The Memory module: its settings, its step of the sampling cycle, its snapshot and its parts.
#include "collect/load_system_information.h"
#include "modules/memory/memory_breakdown.h"
#include "modules/memory/memory_module_picture.h"
#include "modules/module_descriptor.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/localization.h"

#include <QJsonArray>

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveMemory(ModuleDefaults& d, SettingsStore&, const QVariantMap& theme, ModuleSchemaList)
{
    const PrefMeasure m = PrefMeasure::fromTheme(theme);
    d.set(MemoryInnerTextHeaderWidth, m.floorWidth(QStringLiteral("XXXXXX:")));
    d.set(MemoryInnerDetailLHeaderWidth, m.floorWidth(QStringLiteral("X:")));
    d.set(MemoryInnerDetailRHeaderWidth, m.floorWidth(QStringLiteral("XXXXXXXX:")));
}

ModuleSchema memorySchema()
{
    return {ModuleId::Memory,
            "Memory",
            LaunchMemo,
            2,
            "MemoryModuleNotif",
            Tarvel::textKey("Memory"),
            Memory_UpdateInterval,
            withToolItems({{MemoryItemSortArray, T::Array, ints({1, 2, 3, 4, 5})},
                           {Memory_Unit, T::Integer, 1},
                           {Memory_Display_Graph, T::Bool, false},
                           {Memory_Display_LevelBar, T::Bool, false},
                           {Memory_Display_CircleMeter, T::Bool, true},
                           {Memory_Display_Text, T::Bool, true},
                           {Memory_Display_DetailText, T::Bool, false},
                           {Memory_UpdateInterval, T::TruncatedInteger, 5, kIntervalRange},
                           {Memory_GraphWidth, T::TruncatedInteger, 30, kGraphWidthRange},
                           {Memory_Text_WithLongLabel, T::Bool, false},
                           {Memory_DetailText_WithLongLabel, T::Bool, false},
                           {Memory_TradMemoryInfo, T::Bool, false},
                           {Memory_ShowMyLabel, T::Bool, QVariant()}},
                          Memory_EnaMenu_Amon, Memory_EnaMenu_Cnsl, Memory_EnaMenu_Tmnl),
            colors({"B01", "B02", "B03", "B04", "B05", "B06", "B07", "B08", "B09", "B10"}),
            sharedPictures("L02", {}),
            {Memory_Display_Graph, Memory_Display_LevelBar, Memory_Display_CircleMeter, Memory_Display_Text,
             Memory_Display_DetailText},
            &deriveMemory};
}

// The paging counts are the dearest read of the tick: only an open menu shows them. Swap usage
// is another file to read, so it is taken only when asked for, and its history is emptied when
// this sample comes without it: beside the newest Memory sample it is always of the same cycle.
void sampleMemory(const SampleRequest& request, InfoDict& info)
{
    auto sample = request.loadInfo.loadMemoryData(request.menuOpened);
    if (!sample)
        return;
    appendSample(request, info, *sample);
    const std::optional<SwapUsage> swap =
        request.swapWanted ? request.loadInfo.loadSwapUsage() : std::optional<SwapUsage>();
    const History<SwapUsage> swaps = info.history<SwapUsage>(kSwapHistorySlot);
    if (swap)
        info.setHistory(kSwapHistorySlot, swaps.appended(*swap));
    else if (info.exists(kSwapHistorySlot))
        info.setHistory(kSwapHistorySlot, History<SwapUsage>());
}

const char* const kMemoryFigures[] = {"wired",    "active",      "inactive",   "free",        "pageins",
                                      "pageouts", "speculative", "compressor", "application", "cached"};

QString memorySnapshotText(const SnapshotContext& context)
{
    QString out = QStringLiteral("Memory\n");
    const History<MemorySample> history = context.info.history<MemorySample>(context.slot);
    if (history.empty())
        return out + QStringLiteral("  no sample yet\n");
    const ModuleDefaults& memory = context.settings;
    const std::size_t pageSize = context.loadInfo.memoryPageSize();
    const auto totals = context.loadInfo.memoryTotals();
    const MemoryBreakdown parts = memoryBreakdown(history.back(), totals ? totals->totalPages : 0,
                                                  memory.boolValue(PrefKey::Memory_TradMemoryInfo));
    out += QStringLiteral("  ") +
           memoryBarText(parts, pageSize, static_cast<int>(memory.intValue(PrefKey::Memory_Unit))) + QLatin1Char('\n');
    out += QStringLiteral("  pages of %1 bytes, %2 in all\n").arg(pageSize).arg(totals ? totals->totalPages : 0);
    for (std::size_t i = 0; i < history.back().size(); ++i)
        out += QStringLiteral("  %1 %2\n").arg(QString::fromLatin1(kMemoryFigures[i]), -11).arg(history.back()[i]);
    return out;
}

QString memoryBarLine(const SnapshotContext& context, const SettingsStore&)
{
    const History<MemorySample> history = context.info.history<MemorySample>(context.slot);
    if (history.empty())
        return {};
    const auto totals = context.loadInfo.memoryTotals();
    const MemoryBreakdown parts = memoryBreakdown(history.back(), totals ? totals->totalPages : 0,
                                                  context.settings.boolValue(PrefKey::Memory_TradMemoryInfo));
    return memoryBarText(parts, context.loadInfo.memoryPageSize(),
                         static_cast<int>(context.settings.intValue(PrefKey::Memory_Unit)));
}

void addMemorySnapshotJson(const SnapshotContext& context, QJsonObject& root)
{
    const History<MemorySample> history = context.info.history<MemorySample>(context.slot);
    if (history.empty())
        return;
    QJsonArray figures;
    for (std::int64_t figure : history.back())
        figures.append(static_cast<qint64>(figure));
    root.insert(QLatin1String(context.key), figures);
}

} // namespace

const ModuleDescriptor& memoryModule()
{
    static const ModuleDescriptor descriptor{memorySchema(),
                                             &sampleMemory,
                                             false,
                                             StorageUse::None,
                                             &makePlainSnapshot<&memorySnapshotText, &addMemorySnapshotJson>,
                                             nullptr,
                                             &memoryBarLine,
                                             &makePicture<MemoryModulePicture>};
    return descriptor;
}
