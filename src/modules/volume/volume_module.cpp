// The Volume module: its settings, its step of the sampling cycle, its snapshot and its parts.
#include "collect/load_system_information.h"
#include "modules/module_descriptor.h"
#include "modules/volume/volume_menu_rows.h"
#include "modules/volume/volume_module_picture.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"

#include <QJsonArray>

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveVolume(ModuleDefaults& d, SettingsStore&, const QVariantMap& theme, ModuleSchemaList)
{
    const PrefMeasure m = PrefMeasure::fromTheme(theme);
    // The stored label value indexes the list from 0 (the plain hyphen pair), unlike the others.
    m.addLabelPair(d,
                   PlistFunction::labelForSetting(PlistFunction::retVolumeUsedFree(), d.intValue(Vlms_Text_Label) + 1),
                   Vlms_Text_LabelAry, VlmsInnerTextLabelWidth);
    d.set(VlmsInnerPercentWidth, m.floorWidth(QStringLiteral("188%")));
    d.set(VlmsInnerTextValueWidth, m.floorWidth(QStringLiteral("888.8XX")));
    d.set(VlmsInnerIconAbleToBeBol, d.boolValue(Vlms_WithDiskIconInBackground) && d.boolValue(Vlms_ShowEachDisk));
}

ModuleSchema volumeSchema()
{
    return {
        ModuleId::Volume,
        "Volume",
        LaunchVolume,
        7,
        "VlmsModuleNotif",
        Tarvel::textKey("Volume"),
        Vlms_UpdateInterval,
        withToolItems({{VlmsItemSortArray, T::Array, ints({1, 2, 3, 4, 5})},
                       {Vlms_Display_BarChart, T::Bool, true},
                       {Vlms_Display_CycleChart, T::Bool, false},
                       {Vlms_Display_Graph, T::Bool, false},
                       {Vlms_Display_Text, T::Bool, false},
                       {Vlms_Display_Percent, T::Bool, false},
                       {Vlms_GraphAsLine, T::Bool, false},
                       {Vlms_LineAsBold, T::Bool, false},
                       {Vlms_ShowEachDisk, T::Bool, true},
                       {Vlms_WithDiskIconInBackground, T::Bool, false},
                       {Vlms_UpdateInterval, T::TruncatedInteger, 5, kIntervalRange},
                       {Vlms_GraphWidth, T::TruncatedInteger, 30, kGraphWidthRange},
                       {Vlms_Text_Label, T::Integer, 1},
                       {Vlms_Percent_Mode, T::Integer, 1},
                       {Vlms_ColoredValue, T::Bool, QVariant()},
                       {Vlms_GradientColor, T::Bool, QVariant()},
                       {Vlms_ShowMyLabel, T::Bool, QVariant()}},
                      Volume_EnaMenu_Amon, Volume_EnaMenu_Cnsl, Volume_EnaMenu_Tmnl),
        colors({"E01", "E02", "E03", "E04", "E05", "E06", "E07"}),
        sharedPictures("L05", {{"M01", PictureSize::Half},
                               {"M02", PictureSize::Half},
                               {"M03", PictureSize::Half},
                               {"M04", PictureSize::Half},
                               {"M05", PictureSize::Half},
                               {"M06", PictureSize::Half},
                               {"M11", PictureSize::Icon18},
                               {"M12", PictureSize::Icon18},
                               {"O31", PictureSize::Icon18},
                               {"O32", PictureSize::Icon18}}),
        {Vlms_Display_BarChart, Vlms_Display_CycleChart, Vlms_Display_Graph, Vlms_Display_Text, Vlms_Display_Percent},
        &deriveVolume};
}

// An empty sample is kept too: it says that no volume is mounted.
void sampleVolume(const SampleRequest& request, InfoDict& info)
{
    appendSample(request, info, request.loadInfo.retDiskUsage(request.volumes));
}

QString volumeSnapshotText(const SnapshotContext& context)
{
    const VolumeBaseDict& volumes = context.volumes;
    const History<VolumeSample> history = context.info.history<VolumeSample>(context.slot);
    const VolumePictureSettings settings = volumePictureSettings(context.settings);
    const std::vector<StorageBarSet> sets = volumeBarSets(settings, volumes);
    QString out = QStringLiteral("Volume\n  bar    ") + volumeBarText(sets, volumes, history, settings.percentKind) +
                  QLatin1Char('\n');
    static const VolumeSample noSample;
    const VolumeSample& newest = history.empty() ? noSample : history.back();
    for (const auto& [path, volume] : volumes)
        out += QStringLiteral("  %1\n    %2\n    %3\n")
                   .arg(volume.volumeName, volumeFactsText(path, volume), volumeUsageText(volumeUsageOf(newest, path)));
    return out;
}

QString volumeBarLine(const SnapshotContext& context, const SettingsStore&)
{
    const History<VolumeSample> history = context.info.history<VolumeSample>(context.slot);
    if (history.empty())
        return {};
    const VolumePictureSettings settings = volumePictureSettings(context.settings);
    return volumeBarText(volumeBarSets(settings, context.volumes), context.volumes, history, settings.percentKind);
}

void addVolumeSnapshotJson(const SnapshotContext& context, QJsonObject& root)
{
    const History<VolumeSample> history = context.info.history<VolumeSample>(context.slot);
    if (history.empty())
        return;
    const auto usage = [](const VolumeUsage& u) {
        return QJsonArray{static_cast<qint64>(u.total), static_cast<qint64>(u.used), static_cast<qint64>(u.free)};
    };
    QJsonObject object;
    for (const auto& [path, volume] : history.back().volumes)
        object.insert(path, usage(volume));
    if (history.back().all)
        object.insert(QLatin1String("all"), usage(*history.back().all));
    root.insert(QLatin1String(context.key), object);
}

} // namespace

const ModuleDescriptor& volumeModule()
{
    static const ModuleDescriptor descriptor{volumeSchema(),
                                             &sampleVolume,
                                             false,
                                             StorageUse::Volumes,
                                             &makePlainSnapshot<&volumeSnapshotText, &addVolumeSnapshotJson>,
                                             nullptr,
                                             &volumeBarLine,
                                             &makePicture<VolumeModulePicture>};
    return descriptor;
}
