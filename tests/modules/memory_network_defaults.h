// Memory and Network working dictionaries and histories for the picture, panel and tab tests.
#pragma once

#include "collect/history.h"
#include "collect/memory_sample.h"
#include "collect/network_sample.h"
#include "modules/memory/memory_picture_settings.h"
#include "modules/memory/memory_theme_keys.h"
#include "modules/network/network_picture_settings.h"
#include "modules/network/network_theme_keys.h"
#include "prefs/module_defaults.h"
#include "prefs/pref_keys.h"

#include <QFontDatabase>

#include <vector>

inline void setTestColor(ModuleDefaults& d, const char* key, int r, int g, int b, double alpha = 1)
{
    QColor color(r, g, b);
    color.setAlphaF(alpha);
    d.set(key, QVariant::fromValue(color));
}

// Bit i of shown switches element i + 1 on, in the default order.
inline ModuleDefaults memoryPictureDefaults(unsigned shown, bool label = false)
{
    using namespace PrefKey;
    using namespace MemoryThemeKey;
    ModuleDefaults d;
    d.set(MemoryItemSortArray, QVariantList{1, 2, 3, 4, 5});
    const char* switches[] = {Memory_Display_Graph, Memory_Display_LevelBar, Memory_Display_CircleMeter,
                              Memory_Display_Text, Memory_Display_DetailText};
    for (unsigned i = 0; i < 5; ++i)
        d.set(switches[i], (shown & (1U << i)) != 0);
    d.set(Memory_ShowMyLabel, label);
    d.set(Memory_GraphWidth, qint64{30});
    d.set(Memory_Unit, qint64{1});
    d.set(MemoryInnerTextHeaderWidth, 30.0);
    d.set(MemoryInnerDetailLHeaderWidth, 10.0);
    d.set(MemoryInnerDetailRHeaderWidth, 45.0);
    d.set(_FontPostScriptName, QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    setTestColor(d, B01, 200, 0, 0);
    setTestColor(d, B02, 0, 200, 0);
    setTestColor(d, B03, 0, 0, 200);
    setTestColor(d, B04, 200, 200, 0);
    setTestColor(d, B05, 100, 100, 100, 0.2);
    setTestColor(d, B06, 20, 20, 20);
    setTestColor(d, B07, 30, 30, 30);
    setTestColor(d, B08, 0, 150, 0);
    setTestColor(d, B09, 250, 150, 0);
    setTestColor(d, B10, 250, 0, 0);
    setTestColor(d, Z03, 40, 40, 40);
    return d;
}

inline MemoryPictureSettings memorySettings(unsigned shown, bool label = false)
{
    return memoryPictureSettings(memoryPictureDefaults(shown, label));
}

// Bit i of shown switches element i + 1 on: labels, lamps, graph, text.
inline ModuleDefaults networkPictureDefaults(unsigned shown, bool label = false)
{
    using namespace PrefKey;
    using namespace NetworkThemeKey;
    ModuleDefaults d;
    d.set(NetworkItemSortArray, QVariantList{1, 2, 3, 4});
    const char* switches[] = {Network_Display_UdLabel, Network_Display_UdCircle, Network_Display_Graph,
                              Network_Display_Text};
    for (unsigned i = 0; i < 4; ++i)
        d.set(switches[i], (shown & (1U << i)) != 0);
    d.set(Network_ShowMyLabel, label);
    d.set(Network_GraphWidth, qint64{30});
    d.set(Network_Graph_Mode, qint64{1});
    d.set(Network_Text_Mode, qint64{1});
    d.set(Network_Limen_Base, qint64{1});
    d.set(Network_UdLabel_ModeAry, QStringList{"Up", "Dw"});
    d.set(NetworkInnerUdLabelWidth, 14.0);
    d.set(NetworkInnerTextWidth, 44.0);
    d.set(_FontPostScriptName, QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    setTestColor(d, C01, 200, 0, 0);
    setTestColor(d, C02, 0, 0, 200);
    setTestColor(d, C03, 20, 20, 20);
    setTestColor(d, C04, 100, 100, 100, 0.2);
    setTestColor(d, Z03, 40, 40, 40);
    return d;
}

inline NetworkPictureSettings networkSettings(unsigned shown, bool label = false)
{
    return networkPictureSettings(networkPictureDefaults(shown, label));
}

template <class Sample> History<Sample> historyOf(std::vector<Sample> samples)
{
    return History<Sample>::fromSamples(std::move(samples));
}

// Cumulative counters growing by up and down bytes per two-second sample.
inline History<NetworkSample> networkHistory(const std::vector<std::pair<std::int64_t, std::int64_t>>& growth)
{
    std::vector<NetworkSample> samples{{1000, 1000, 2.0, {}}};
    for (const auto& [up, down] : growth)
        samples.push_back({samples.back().toUp + up, samples.back().toDw + down, 2.0, {}});
    return historyOf(std::move(samples));
}
