// Reading the Temp settings and theme colours out of the working dictionary.
#include "modules/temp/temp_picture_settings.h"

#include "modules/temp/temp_theme_keys.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

SensorPictureSettings tempPictureSettings(const ModuleDefaults& d)
{
    using namespace TempThemeKey;
    static const SensorPictureKeys keys{Temp_ShowMyLabel,   L06,
                                        TempItemSortArray,  Temp_Display_Graph,
                                        Temp_Display_Text,  Temp_GraphWidth,
                                        Temp_GradientColor, Temp_ColoredMenu,
                                        Temp_MaxTemp,       TempInnerTextWidth,
                                        TempInnerTextMode,  TempInnerPiledFontSizeDbl,
                                        Temp_UpdateInterval, {F01, F02, F03, F04}};
    SensorPictureSettings s = sensorPictureSettings(d, keys);
    s.unitMode = static_cast<int>(d.intValue(QLatin1String(Temp_Unit_Mode)));
    s.unitText = d.stringValue(QLatin1String(Temp_Unit_ModeStr));
    return s;
}

QString tempShownSensor(const ModuleDefaults& d)
{
    const QString shown = d.stringValue(QLatin1String(Temp_ShowTempOnMenu));
    return shown == QLatin1String(kTempShowAverage) ? QString() : shown;
}
