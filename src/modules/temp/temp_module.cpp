// The Temp module: its settings so far; its status item, sensors and tab come with its sources.
#include "modules/module_descriptor.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/label_lists.h"

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
            "Temp",
            Temp_UpdateInterval,
            withToolItems({{TempItemSortArray, T::Array, ints({1, 2})},
                           {Temp_Display_Text, T::Bool, true},
                           {Temp_Display_Graph, T::Bool, true},
                           {Temp_PileUp_TextGraph, T::Bool, true},
                           {Temp_AccessForSmartDisks, T::Bool, false},
                           {Temp_ColoredMenu, T::Bool, false},
                           {Temp_UpdateInterval, T::TruncatedInteger, 5},
                           {Temp_GraphWidth, T::TruncatedInteger, 30},
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

} // namespace

const ModuleDescriptor& tempModule()
{
    static const ModuleDescriptor descriptor{tempSchema()};
    return descriptor;
}
