// Reading the Memory settings and theme colours out of the working dictionary.
#include "modules/memory/memory_picture_settings.h"

#include "modules/memory/memory_theme_keys.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

MemoryPictureSettings memoryPictureSettings(const ModuleDefaults& d)
{
    MemoryPictureSettings s;
    static_cast<PictureBasics&>(s) = pictureBasics(d, Memory_ShowMyLabel, MemoryThemeKey::L02, MemoryItemSortArray);
    readSettings(d, {{&s.traditional, Memory_TradMemoryInfo},
                     {&s.graph, Memory_Display_Graph},
                     {&s.levelBar, Memory_Display_LevelBar},
                     {&s.meter, Memory_Display_CircleMeter},
                     {&s.text, Memory_Display_Text},
                     {&s.detailText, Memory_Display_DetailText},
                     {&s.longText, Memory_Text_WithLongLabel},
                     {&s.longDetail, Memory_DetailText_WithLongLabel}});
    s.graphWidth = static_cast<double>(d.intValue(Memory_GraphWidth));
    s.unit = static_cast<int>(d.intValue(Memory_Unit));
    s.updateInterval = d.intValue(Memory_UpdateInterval);
    s.fontName = d.stringValue(_FontPostScriptName);
    s.fontSize = 9 + d.doubleValue(_FontSizeDiff);
    readSettings(d, {{&s.textHeaderWidth, MemoryInnerTextHeaderWidth},
                     {&s.detailLeftHeaderWidth, MemoryInnerDetailLHeaderWidth},
                     {&s.detailRightHeaderWidth, MemoryInnerDetailRHeaderWidth}});
    using namespace MemoryThemeKey;
    readSettings(d, {{&s.frame, B06}, {&s.textColor, B07}, {&s.low, B08}, {&s.warning, B09}, {&s.critical, B10}});
    for (const MemoryPart part : {MemoryPart::Wired, MemoryPart::Active, MemoryPart::Inactive, MemoryPart::Compressed,
                                  MemoryPart::Other, MemoryPart::Free, MemoryPart::Application, MemoryPart::Cached})
        s.partColors[static_cast<std::size_t>(part)] = memoryPartColor(d, part);
    return s;
}
