// CPU working dictionaries, the settings read from them, and histories for the picture tests.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "modules/cpu/cpu_picture_settings.h"
#include "modules/cpu/cpu_theme_keys.h"
#include "prefs/module_defaults.h"
#include "prefs/pref_keys.h"

#include <QFontDatabase>

struct CpuElements {
    bool graph = false;
    bool levelBar = false;
    bool meter = false;
    bool text = false;
};

// Every element in its default order, graph 40 points wide, text box 30, distinct colours.
inline ModuleDefaults cpuPictureDefaults(CpuElements shown, bool average = true, bool label = false)
{
    using namespace PrefKey;
    ModuleDefaults d;
    d.set(CpuItemSortArray, QVariantList{1, 2, 3, 4});
    d.set(Cpu_Display_Graph, shown.graph);
    d.set(Cpu_Display_LevelBar, shown.levelBar);
    d.set(Cpu_Display_CircleMeter, shown.meter);
    d.set(Cpu_Display_Text, shown.text);
    d.set(Cpu_AverageMultiProcessors, average);
    d.set(Cpu_ShowMyLabel, label);
    d.set(Cpu_GraphWidth, qint64{40});
    d.set(CpuInnerTextWidth, 30.0);
    d.set(_FontPostScriptName, QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    const auto color = [&d](const char* key, int r, int g, int b) { d.set(key, QVariant::fromValue(QColor(r, g, b))); };
    color(CpuThemeKey::A01, 255, 0, 0);
    color(CpuThemeKey::A02, 0, 255, 0);
    color(CpuThemeKey::A03, 0, 0, 255);
    color(CpuThemeKey::A04, 10, 10, 10);
    color(CpuThemeKey::A05, 20, 20, 20);
    color(CpuThemeKey::A07, 30, 30, 30);
    color(CpuThemeKey::Z03, 40, 40, 40);
    return d;
}

inline CpuPictureSettings cpuSettings(CpuElements shown, bool average = true, bool label = false)
{
    return cpuPictureSettings(cpuPictureDefaults(shown, average, label));
}

// A history of count samples, each with the given records.
inline History<CpuSample> cpuHistory(const CpuSample& sample, int count = 1)
{
    History<CpuSample> history;
    for (int i = 0; i < count; ++i)
        history = history.appended(sample);
    return history;
}
