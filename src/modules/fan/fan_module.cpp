// The Fan module: its settings, its step of the sampling cycle, its snapshot and its parts.
#include "collect/load_system_information.h"
#include "modules/fan/fan_module_picture.h"
#include "modules/fan/fan_panel_rows.h"
#include "modules/fan/image_fan_bar.h"
#include "modules/image_sensor_bar.h"
#include "modules/module_descriptor.h"
#include "modules/sensor_snapshot.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/localization.h"

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveFan(ModuleDefaults& d, SettingsStore& store, const QVariantMap& theme, ModuleSchemaList)
{
    const PrefMeasure m = PrefMeasure::fromTheme(theme);
    const PiledText piled =
        m.piledText(d.boolValue(Fan_Display_Text), d.boolValue(Fan_Display_Graph), d.boolValue(Fan_PileUp_TextGraph),
                    static_cast<double>(d.intValue(Fan_GraphWidth)), QStringLiteral("8888rpm"), QStringLiteral("8888"));
    // Piled text has no room for the unit.
    const bool bare = piled.fontSize > 0;
    d.set(FanInnerPileUp, piled.pileUp);
    d.set(FanInnerPiledFontSizeDbl, piled.fontSize);
    d.set(FanInnerTextFormat, bare ? QStringLiteral("%04d") : QStringLiteral("%04drpm"));
    d.set(FanInnerTextWidth, m.floorWidth(bare ? QStringLiteral("8888") : QStringLiteral("8888rpm")));
    d.set(FanInnerTextMode, piled.textMode);
    d.set(Fax_MaxRpm, PrefFunctions::checkMaxRpm(store, d.intValue(Fax_MaxRpm)));
}

ModuleSchema fanSchema()
{
    return {ModuleId::Fan,
            "Fan",
            LaunchFans,
            6,
            "FanModuleNotif",
            Tarvel::textKey("Fan"),
            Fan_UpdateInterval,
            withToolItems({{FanItemSortArray, T::Array, ints({1, 2})},
                           {Fan_Display_Text, T::Bool, true},
                           {Fan_Display_Graph, T::Bool, true},
                           {Fan_PileUp_TextGraph, T::Bool, true},
                           {Fan_ColoredMenu, T::Bool, false},
                           {Fan_UpdateInterval, T::TruncatedInteger, 5, kIntervalRange},
                           {Fan_GraphWidth, T::TruncatedInteger, 30, kGraphWidthRange},
                           {Fan_GradientColor, T::Bool, QVariant()},
                           {Fax_MaxRpm, T::Integer, QVariant()},
                           {Fan_ShowMyLabel, T::Bool, QVariant()}},
                          Fan_EnaMenu_Amon, Fan_EnaMenu_Cnsl, Fan_EnaMenu_Tmnl),
            colors({"G01", "G02", "G03", "G04"}),
            sharedPictures("L07", {}),
            {Fan_Display_Text, Fan_Display_Graph},
            &deriveFan};
}

void sampleFan(const SampleRequest& request, InfoDict& info)
{
    SensorSample sample = request.loadInfo.getFanDetail(request.sensors);
    if (!sample.empty())
        appendSample(request, info, std::move(sample));
}

QString fanSnapshotText(const SnapshotContext& context)
{
    const SensorSample newest = newestSensorSample(context);
    const QString bar = fanSpeedText(sensorValue(newest, {}), context.settings.stringValue(FanInnerTextFormat));
    return sensorSnapshotText(context, bar, fanPanelRows(context.sensors.fanData, newest));
}

QString fanBarLine(const SnapshotContext& context, const SettingsStore&)
{
    // A machine without sensors shows the placeholder, as the item does.
    const SensorSample newest = newestSensorSample(context);
    return fanSpeedText(sensorValue(newest, {}), context.settings.stringValue(FanInnerTextFormat));
}

void addFanSnapshotJson(const SnapshotContext& context, QJsonObject& root)
{
    addSensorSnapshotJson(context, kAverageFanKey, root);
}

} // namespace

const ModuleDescriptor& fanModule()
{
    static const ModuleDescriptor descriptor{fanSchema(),
                                             &sampleFan,
                                             false,
                                             StorageUse::None,
                                             &makePlainSnapshot<&fanSnapshotText, &addFanSnapshotJson>,
                                             nullptr,
                                             &fanBarLine,
                                             &makePicture<FanModulePicture>};
    return descriptor;
}
