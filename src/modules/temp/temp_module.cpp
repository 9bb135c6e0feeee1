// The Temp module: its settings, its step of the sampling cycle, its snapshot and its parts.
#include "collect/load_system_information.h"
#include "modules/image_sensor_bar.h"
#include "modules/module_descriptor.h"
#include "modules/sensor_snapshot.h"
#include "modules/temp/temp_module_picture.h"
#include "modules/temp/temp_panel_rows.h"
#include "modules/temp/temp_picture_settings.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveTemp(ModuleDefaults& d, SettingsStore& store, const QVariantMap& theme, ModuleSchemaList)
{
    const PrefMeasure m = PrefMeasure::fromTheme(theme);
    const QString unit = PlistFunction::labelForSetting(GeneralFunctions::retTempUnit(), d.intValue(Temp_Unit_Mode));
    d.set(Temp_Unit_ModeStr, unit);
    const QString sample = QStringLiteral("88") + unit;
    const PiledText piled =
        m.piledText(d.boolValue(Temp_Display_Text), d.boolValue(Temp_Display_Graph), d.boolValue(Temp_PileUp_TextGraph),
                    static_cast<double>(d.intValue(Temp_GraphWidth)), sample, QStringLiteral("88"));
    d.set(TempInnerPileUp, piled.pileUp);
    d.set(TempInnerPiledFontSizeDbl, piled.fontSize);
    d.set(TempInnerTextMode, piled.textMode);
    d.set(TempInnerTextWidth, m.floorWidth(sample));
    d.set(Temp_MaxTemp, PrefFunctions::checkMaxTemp(store, d.intValue(Temp_MaxTemp)));
}

ModuleSchema tempSchema()
{
    return {ModuleId::Temp,
            "Temp",
            LaunchTemp,
            5,
            "TempModuleNotif",
            Tarvel::textKey("Temp"),
            Temp_UpdateInterval,
            withToolItems({{TempItemSortArray, T::Array, ints({1, 2})},
                           {Temp_Display_Text, T::Bool, true},
                           {Temp_Display_Graph, T::Bool, true},
                           {Temp_PileUp_TextGraph, T::Bool, true},
                           {Temp_AccessForSmartDisks, T::Bool, false},
                           {Temp_ColoredMenu, T::Bool, false},
                           {Temp_UpdateInterval, T::TruncatedInteger, 5, kIntervalRange},
                           {Temp_GraphWidth, T::TruncatedInteger, 30, kGraphWidthRange},
                           {Temp_Unit_Mode, T::Integer, 1},
                           {Temp_ShowTempOnMenu, T::String, QStringLiteral("(Average)")},
                           {Temp_GradientColor, T::Bool, QVariant()},
                           {Temp_MaxTemp, T::Integer, QVariant()},
                           {Temp_ShowMyLabel, T::Bool, QVariant()}},
                          Temp_EnaMenu_Amon, Temp_EnaMenu_Cnsl, Temp_EnaMenu_Tmnl),
            colors({"F01", "F02", "F03", "F04"}),
            sharedPictures("L06", {}),
            {Temp_Display_Text, Temp_Display_Graph},
            &deriveTemp};
}

void sampleTemp(const SampleRequest& request, InfoDict& info)
{
    SensorSample sample = request.loadInfo.getBaseTempNew(request.sensors);
    if (!sample.empty())
        appendSample(request, info, std::move(sample));
}

QString tempSnapshotText(const SnapshotContext& context)
{
    const ModuleDefaults& d = context.settings;
    const TempUnit unit{static_cast<int>(d.intValue(Temp_Unit_Mode)), d.stringValue(Temp_Unit_ModeStr)};
    const SensorSample newest = newestSensorSample(context);
    const QString bar = tempDegreesText(sensorValue(newest, tempShownSensor(d)), unit);
    // The drives are only listed unless the settings allow asking them.
    const QList<SmartReading> drives = context.loadInfo.getSmartDetailTemp(!d.boolValue(Temp_AccessForSmartDisks));
    return sensorSnapshotText(context, bar, tempPanelRows(context.sensors.tempData, newest, unit, drives));
}

QString tempBarLine(const SnapshotContext& context, const SettingsStore&)
{
    // A machine without sensors shows the placeholder, as the item does.
    const SensorSample newest = newestSensorSample(context);
    const ModuleDefaults& d = context.settings;
    const TempUnit unit{static_cast<int>(d.intValue(Temp_Unit_Mode)), d.stringValue(Temp_Unit_ModeStr)};
    return tempDegreesText(sensorValue(newest, tempShownSensor(d)), unit);
}

void addTempSnapshotJson(const SnapshotContext& context, QJsonObject& root)
{
    addSensorSnapshotJson(context, kAverageTempKey, root);
}

} // namespace

const ModuleDescriptor& tempModule()
{
    static const ModuleDescriptor descriptor{tempSchema(),
                                             &sampleTemp,
                                             false,
                                             StorageUse::None,
                                             &makePlainSnapshot<&tempSnapshotText, &addTempSnapshotJson>,
                                             nullptr,
                                             &tempBarLine,
                                             &makePicture<TempModulePicture>};
    return descriptor;
}
