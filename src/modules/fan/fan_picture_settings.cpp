// Reading the Fan settings and theme colours out of the working dictionary.
#include "modules/fan/fan_picture_settings.h"

#include "modules/fan/fan_theme_keys.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

SensorPictureSettings fanPictureSettings(const ModuleDefaults& d)
{
    using namespace FanThemeKey;
    static const SensorPictureKeys keys{Fan_ShowMyLabel,   L07,
                                        FanItemSortArray,  Fan_Display_Graph,
                                        Fan_Display_Text,  Fan_GraphWidth,
                                        Fan_GradientColor, Fan_ColoredMenu,
                                        Fax_MaxRpm,        FanInnerTextWidth,
                                        FanInnerTextMode,  FanInnerPiledFontSizeDbl,
                                        Fan_UpdateInterval, {G01, G02, G03, G04}};
    SensorPictureSettings s = sensorPictureSettings(d, keys);
    s.textFormat = d.stringValue(QLatin1String(FanInnerTextFormat));
    return s;
}
