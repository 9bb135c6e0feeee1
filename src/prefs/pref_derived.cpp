// Derived keys per module, measured in the theme's font so the pictures do not jitter.
#include "prefs/pref_derived.h"

#include "prefs/module_switch.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "toolkit/label_lists.h"
#include "toolkit/text_metrics.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace PrefKey;

struct Measure {
    QString font;
    double size;
    double width(const QString& text) const { return TvlClasses::calcMenuLabelSize(text, size, font).width(); }
    qint64 floorWidth(const QString& text) const { return static_cast<qint64>(std::floor(width(text))); }
    qint64 widest(const QStringList& texts) const
    {
        double w = 0;
        for (const QString& t : texts)
            w = std::max(w, width(t));
        return static_cast<qint64>(std::floor(w));
    }
};

void addGeneral(ModuleDefaults& d, const SettingsStore& s, const QVariantMap& theme)
{
    for (ModuleId id : kAllModules) {
        if (id != ModuleId::General)
            d.set(moduleKeys(id).switchKey, PrefFunctions::isModuleSwitchedOn(s, id));
    }
    d.set(_FontName, theme.value(_FontName).toString());
    d.set(_FontStyle, theme.value(_FontStyle).toString());
    d.set(_AlternativeTheme, theme.value(_AlternativeTheme).toString());
}

// Label pairs with "-" emptied, and the width of their widest entry.
void addLabelPair(ModuleDefaults& d, const Measure& m, const QStringList& pair, const char* listKey,
                  const char* widthKey)
{
    const QStringList labels = PrefFunctions::checkHyphenToNull(pair).value_or(QStringList());
    d.set(listKey, labels);
    d.set(widthKey, m.widest(labels));
}

void addDisk(ModuleDefaults& d, const Measure& m)
{
    const auto pairs = PlistFunction::retDiskReadWrite();
    addLabelPair(d, m, PlistFunction::labelForSetting(pairs, d.intValue(Disk_Indicator_Label)), Disk_Indicator_LabelAry,
                 DiskInnerIndicatorLabelWidth);
    addLabelPair(d, m, PlistFunction::labelForSetting(pairs, d.intValue(Disk_Graph_Label)), Disk_Graph_LabelAry,
                 DiskInnerGraphLabelWidth);
    addLabelPair(d, m, PlistFunction::labelForSetting(pairs, d.intValue(Disk_Text_Label)), Disk_Text_LabelAry,
                 DiskInnerTextLabelWidth);
    d.set(DiskInnerTextValueWidth, m.floorWidth(QStringLiteral("888.8XX/X")));
    // A disk's icon identifies one disk, so it can only stand behind per-disk pictures.
    d.set(DiskInnerIconAbleToBeBol, d.boolValue(Disk_WithDiskIconInBackground) && d.boolValue(Disk_ShowEachDisk));
}

void addVolume(ModuleDefaults& d, const Measure& m)
{
    // The stored label value indexes the list from 0 (the plain hyphen pair), unlike the others.
    addLabelPair(d, m,
                 PlistFunction::labelForSetting(PlistFunction::retVolumeUsedFree(), d.intValue(Vlms_Text_Label) + 1),
                 Vlms_Text_LabelAry, VlmsInnerTextLabelWidth);
    d.set(VlmsInnerPercentWidth, m.floorWidth(QStringLiteral("188%")));
    d.set(VlmsInnerTextValueWidth, m.floorWidth(QStringLiteral("888.8XX")));
    d.set(VlmsInnerIconAbleToBeBol, d.boolValue(Vlms_WithDiskIconInBackground) && d.boolValue(Vlms_ShowEachDisk));
}

// Text mode of the Temp and Fan pictures: 0 no text, 1 text beside the graph, 2 text piled on it.
qint64 textMode(bool text, bool pileUp)
{
    return !text ? 0 : (pileUp ? 2 : 1);
}

void addTemp(ModuleDefaults& d, SettingsStore& s, const Measure& m)
{
    const QString unit = PlistFunction::labelForSetting(GeneralFunctions::retTempUnit(), d.intValue(Temp_Unit_Mode));
    d.set(Temp_Unit_ModeStr, unit);
    const QString sample = QStringLiteral("88") + unit;
    const bool pileUp =
        d.boolValue(Temp_Display_Text) && d.boolValue(Temp_Display_Graph) && d.boolValue(Temp_PileUp_TextGraph);
    double piledSize = -1.0;
    if (pileUp && m.width(sample) > static_cast<double>(d.intValue(Temp_GraphWidth)))
        piledSize = PrefFunctions::calcPiledFontSize(QStringLiteral("88"), m.size, m.font,
                                                     static_cast<double>(d.intValue(Temp_GraphWidth)));
    d.set(TempInnerPileUp, pileUp);
    d.set(TempInnerPiledFontSizeDbl, piledSize);
    d.set(TempInnerTextMode, textMode(d.boolValue(Temp_Display_Text), pileUp));
    d.set(TempInnerTextWidth, m.floorWidth(sample));
    d.set(Temp_MaxTemp, PrefFunctions::checkMaxTemp(s, d.intValue(Temp_MaxTemp)));
}

void addFan(ModuleDefaults& d, SettingsStore& s, const Measure& m)
{
    const bool pileUp =
        d.boolValue(Fan_Display_Text) && d.boolValue(Fan_Display_Graph) && d.boolValue(Fan_PileUp_TextGraph);
    const double graphWidth = static_cast<double>(d.intValue(Fan_GraphWidth));
    double piledSize = -1.0;
    if (pileUp && m.width(QStringLiteral("8888rpm")) > graphWidth)
        piledSize = PrefFunctions::calcPiledFontSize(QStringLiteral("8888"), m.size, m.font, graphWidth);
    // Piled text has no room for the unit.
    const bool bare = piledSize > 0;
    d.set(FanInnerPileUp, pileUp);
    d.set(FanInnerPiledFontSizeDbl, piledSize);
    d.set(FanInnerTextFormat, bare ? QStringLiteral("%04d") : QStringLiteral("%04drpm"));
    d.set(FanInnerTextWidth, m.floorWidth(bare ? QStringLiteral("8888") : QStringLiteral("8888rpm")));
    d.set(FanInnerTextMode, textMode(d.boolValue(Fan_Display_Text), pileUp));
    d.set(Fax_MaxRpm, PrefFunctions::checkMaxRpm(s, d.intValue(Fax_MaxRpm)));
}

} // namespace

void addDerivedKeys(ModuleId id, ModuleDefaults& d, SettingsStore& store, const QVariantMap& theme)
{
    const double baseSize = static_cast<double>(theme.value(_FontSizeDiff).toLongLong()) + 9.0;
    const Measure m{theme.value(_FontPostScriptName).toString(), baseSize};
    switch (id) {
    case ModuleId::General:
        addGeneral(d, store, theme);
        break;
    case ModuleId::Cpu: {
        const Measure cpu{m.font, m.size + (d.boolValue(Cpu_Text_DisplayAverage) ? 1.0 : 0.0)};
        d.set(CpuInnerTextWidth, cpu.floorWidth(QStringLiteral("188%")));
        break;
    }
    case ModuleId::Memory:
        d.set(MemoryInnerTextHeaderWidth, m.floorWidth(QStringLiteral("XXXXXX:")));
        d.set(MemoryInnerDetailLHeaderWidth, m.floorWidth(QStringLiteral("X:")));
        d.set(MemoryInnerDetailRHeaderWidth, m.floorWidth(QStringLiteral("XXXXXXXX:")));
        break;
    case ModuleId::Network: {
        const QStringList labels =
            PlistFunction::labelForSetting(PlistFunction::retNetworkUdLabel(), d.intValue(Network_UdLabel_Mode));
        d.set(Network_UdLabel_ModeAry, labels);
        d.set(NetworkInnerUdLabelWidth, m.widest(labels));
        d.set(NetworkInnerTextWidth, m.floorWidth(QStringLiteral("888.8XXX")));
        break;
    }
    case ModuleId::Disk:
        addDisk(d, m);
        break;
    case ModuleId::Volume:
        addVolume(d, m);
        break;
    case ModuleId::Temp:
        addTemp(d, store, m);
        break;
    case ModuleId::Fan:
        addFan(d, store, m);
        break;
    case ModuleId::Vnc:
        break;
    }
}
