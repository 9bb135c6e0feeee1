// Reading the Memory settings and theme colours out of the working dictionary.
#include "modules/memory/memory_picture_settings.h"

#include "modules/memory/memory_theme_keys.h"
#include "prefs/pref_keys.h"

using namespace PrefKey;

MemoryPictureSettings memoryPictureSettings(const ModuleDefaults& d)
{
    MemoryPictureSettings s;
    static_cast<PictureBasics&>(s) = pictureBasics(d, Memory_ShowMyLabel, MemoryThemeKey::L02, MemoryItemSortArray);
    s.traditional = d.boolValue(Memory_TradMemoryInfo);
    s.graph = d.boolValue(Memory_Display_Graph);
    s.levelBar = d.boolValue(Memory_Display_LevelBar);
    s.meter = d.boolValue(Memory_Display_CircleMeter);
    s.text = d.boolValue(Memory_Display_Text);
    s.detailText = d.boolValue(Memory_Display_DetailText);
    s.graphWidth = static_cast<double>(d.intValue(Memory_GraphWidth));
    s.unit = static_cast<int>(d.intValue(Memory_Unit));
    s.longText = d.boolValue(Memory_Text_WithLongLabel);
    s.longDetail = d.boolValue(Memory_DetailText_WithLongLabel);
    s.fontName = d.stringValue(_FontPostScriptName);
    s.fontSize = 9 + d.doubleValue(_FontSizeDiff);
    s.textHeaderWidth = d.doubleValue(MemoryInnerTextHeaderWidth);
    s.detailLeftHeaderWidth = d.doubleValue(MemoryInnerDetailLHeaderWidth);
    s.detailRightHeaderWidth = d.doubleValue(MemoryInnerDetailRHeaderWidth);
    s.frame = d.color(MemoryThemeKey::B06);
    s.textColor = d.color(MemoryThemeKey::B07);
    s.low = d.color(MemoryThemeKey::B08);
    s.warning = d.color(MemoryThemeKey::B09);
    s.critical = d.color(MemoryThemeKey::B10);
    s.updateInterval = d.intValue(Memory_UpdateInterval);
    for (const MemoryPart part : {MemoryPart::Wired, MemoryPart::Active, MemoryPart::Inactive, MemoryPart::Compressed,
                                  MemoryPart::Other, MemoryPart::Free, MemoryPart::Application, MemoryPart::Cached})
        s.partColors[static_cast<std::size_t>(part)] = memoryPartColor(d, part);
    return s;
}
