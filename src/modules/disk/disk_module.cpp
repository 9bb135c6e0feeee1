// The Disk module: its settings, its step of the sampling cycle, its snapshot and its parts.
#include "collect/load_system_information.h"
#include "modules/disk/disk_menu_rows.h"
#include "modules/disk/disk_module_picture.h"
#include "modules/module_descriptor.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/counter_arithmetic.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"

#include <QJsonArray>

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveDisk(ModuleDefaults& d, SettingsStore&, const QVariantMap& theme, ModuleSchemaList)
{
    const PrefMeasure m = PrefMeasure::fromTheme(theme);
    const auto pairs = PlistFunction::retDiskReadWrite();
    m.addLabelPair(d, PlistFunction::labelForSetting(pairs, d.intValue(Disk_Indicator_Label)), Disk_Indicator_LabelAry,
                   DiskInnerIndicatorLabelWidth);
    m.addLabelPair(d, PlistFunction::labelForSetting(pairs, d.intValue(Disk_Graph_Label)), Disk_Graph_LabelAry,
                   DiskInnerGraphLabelWidth);
    m.addLabelPair(d, PlistFunction::labelForSetting(pairs, d.intValue(Disk_Text_Label)), Disk_Text_LabelAry,
                   DiskInnerTextLabelWidth);
    d.set(DiskInnerTextValueWidth, m.floorWidth(QStringLiteral("888.8XX/X")));
    // A disk's icon identifies one disk, so it can only stand behind per-disk pictures.
    d.set(DiskInnerIconAbleToBeBol, d.boolValue(Disk_WithDiskIconInBackground) && d.boolValue(Disk_ShowEachDisk));
}

ModuleSchema diskSchema()
{
    return {ModuleId::Disk,
            "Disk",
            LaunchDisk,
            4,
            "DiskModuleNotif",
            Tarvel::textKey("Disk"),
            Disk_UpdateInterval,
            withToolItems({{DiskItemSortArray, T::Array, ints({1, 2, 3})},
                           {Disk_Display_Indicator, T::Bool, true},
                           {Disk_Display_Graph, T::Bool, false},
                           {Disk_Display_Text, T::Bool, false},
                           {Disk_ShowEachDisk, T::Bool, true},
                           {Disk_WithDiskIconInBackground, T::Bool, false},
                           {Disk_ShowVirtualDisks, T::Bool, false},
                           {Disk_UpdateInterval, T::TruncatedInteger, 2, kIntervalRange},
                           {Disk_GraphWidth, T::TruncatedInteger, 30, kGraphWidthRange},
                           {Disk_Indicator_Label, T::Integer, 1},
                           {Disk_Graph_Label, T::Integer, 1},
                           {Disk_Graph_Mode, T::Integer, 1},
                           {Disk_Text_Label, T::Integer, 1},
                           {Disk_Percent_Mode, T::Integer, 1},
                           {Disk_ShowMyLabel, T::Bool, QVariant()}},
                          Disk_EnaMenu_Amon, Disk_EnaMenu_Cnsl, Disk_EnaMenu_Tmnl),
            colors({"D01", "D02", "D03", "D04"}),
            // The volume kinds stand behind per-disk sets when disk pictures are asked for.
            sharedPictures("L04", {{"M01", PictureSize::Half},
                                   {"M02", PictureSize::Half},
                                   {"M03", PictureSize::Half},
                                   {"M04", PictureSize::Half},
                                   {"M05", PictureSize::Half},
                                   {"M06", PictureSize::Half},
                                   {"O31", PictureSize::Icon18},
                                   {"O32", PictureSize::Icon18}}),
            {Disk_Display_Indicator, Disk_Display_Graph, Disk_Display_Text},
            &deriveDisk};
}

void sampleDisk(const SampleRequest& request, InfoDict& info)
{
    if (auto sample = request.loadInfo.retDiskRW(static_cast<double>(request.seconds)))
        appendSample(request, info, std::move(*sample));
}

QString diskSnapshotText(const SnapshotContext& context)
{
    const DiskPictureSettings settings = diskPictureSettings(context.settings);
    const DiskBaseDict disks = shownDisks(settings, context.disks);
    const History<DiskSample> history = context.info.history<DiskSample>(context.slot);
    const std::vector<StorageBarSet> sets = diskBarSets(settings, disks);
    // A rate shown is a rate measured: before two samples there is none to show.
    const bool measured = history.size() >= 2;
    QString out = QStringLiteral("Disk\n");
    out += measured ? QStringLiteral("  bar    ") + diskBarText(sets, disks, history) + QLatin1Char('\n')
                    : QStringLiteral("  (rates need two samples; sample more cycles)\n");
    for (const auto& [key, disk] : disks) {
        out += QStringLiteral("  ") + diskTitleText(disk) + QLatin1Char('\n');
        const QString rates = measured ? diskRatesText(history, key) : QString();
        for (const QString& line : {diskFactsText(disk), rates, diskTotalsText(history, key)})
            if (!line.isEmpty())
                out += QStringLiteral("    ") + line + QLatin1Char('\n');
    }
    return out;
}

QString diskBarLine(const SnapshotContext& context, const SettingsStore&)
{
    const History<DiskSample> history = context.info.history<DiskSample>(context.slot);
    if (history.size() < 2)
        return {};
    const DiskPictureSettings settings = diskPictureSettings(context.settings);
    const DiskBaseDict disks = shownDisks(settings, context.disks);
    return diskBarText(diskBarSets(settings, disks), disks, history);
}

void addDiskSnapshotJson(const SnapshotContext& context, QJsonObject& root)
{
    const History<DiskSample> history = context.info.history<DiskSample>(context.slot);
    if (history.empty())
        return;
    QJsonObject object{{"int", history.back().interval}};
    for (const auto& [key, counters] : history.back().devices)
        object.insert(key,
                      QJsonArray{qint64{Counter::saturated(counters[0])}, qint64{Counter::saturated(counters[1])}});
    root.insert(QLatin1String(context.key), object);
}

} // namespace

const ModuleDescriptor& diskModule()
{
    static const ModuleDescriptor descriptor{diskSchema(),
                                             &sampleDisk,
                                             false,
                                             StorageUse::Disks,
                                             &makePlainSnapshot<&diskSnapshotText, &addDiskSnapshotJson>,
                                             nullptr,
                                             &diskBarLine,
                                             &makePicture<DiskModulePicture>};
    return descriptor;
}
