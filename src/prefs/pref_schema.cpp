// First-run values and theme entries of every module, in one place.
#include "prefs/pref_schema.h"

#include "prefs/pref_keys.h"

#include <QVariantList>

#include <array>

namespace {

using namespace PrefKey;
using T = PrefType;

QVariantList ints(std::initializer_list<int> values)
{
    QVariantList out;
    for (int v : values)
        out.append(v);
    return out;
}

const QVariant kNone;
const QVariant kYes(true);
const QVariant kNo(false);

std::vector<PrefField> withToolItems(std::vector<PrefField> fields, const char* amon, const char* cnsl,
                                     const char* tmnl)
{
    fields.push_back({amon, T::Bool, kNone});
    fields.push_back({cnsl, T::Bool, kNone});
    fields.push_back({tmnl, T::Bool, kNone});
    return fields;
}

std::vector<ThemePictureUse> sharedPictures(const char* label, std::initializer_list<ThemePictureUse> more)
{
    std::vector<ThemePictureUse> out{{label, PictureSize::Half},   {"O01", PictureSize::Icon18},
                                     {"O02", PictureSize::Icon18}, {"O11", PictureSize::Icon18},
                                     {"O12", PictureSize::Icon18}, {"O13", PictureSize::Icon18}};
    out.insert(out.end(), more);
    return out;
}

std::vector<const char*> colors(std::initializer_list<const char*> own)
{
    std::vector<const char*> out{"Z01", "Z03"};
    out.insert(out.end(), own);
    return out;
}

ModuleSchema general()
{
    return {{{TopItemSortArray, T::Array, ints({1, 2, 3, 4, 7, 5, 6, 8})},
             {DisplayMyMenuIcon, T::Bool, kYes},
             {TopHistgramPreview, T::Bool, kNo},
             {DisplayTopWindowAtStartup, T::Bool, kYes},
             {DenyUpdateNotif, T::Bool, kNo},
             {AutoLaunchAtLogin, T::Bool, kNo},
             {Cpu_ShowMyLabel, T::Bool, kYes},
             {Memory_ShowMyLabel, T::Bool, kYes},
             {Network_ShowMyLabel, T::Bool, kYes},
             {Disk_ShowMyLabel, T::Bool, kYes},
             {Vlms_ShowMyLabel, T::Bool, kYes},
             {Temp_ShowMyLabel, T::Bool, kYes},
             {Fan_ShowMyLabel, T::Bool, kYes},
             {kRebootRegularlyDays, T::Integer, kNone}},
            colors({}),
            // The General item draws its pictures at half size, all but the first icon.
            {{"N01", PictureSize::Half},
             {"O01", PictureSize::Icon18},
             {"O02", PictureSize::Half},
             {"O11", PictureSize::Half},
             {"O12", PictureSize::Half},
             {"O13", PictureSize::Half}}};
}

ModuleSchema cpu()
{
    return {withToolItems({{CpuItemSortArray, T::Array, ints({1, 2, 3, 4})},
                           {Cpu_Display_Graph, T::Bool, kYes},
                           {Cpu_Display_LevelBar, T::Bool, kNo},
                           {Cpu_Display_CircleMeter, T::Bool, kNo},
                           {Cpu_Display_Text, T::Bool, kYes},
                           {Cpu_UpdateInterval, T::TruncatedInteger, 2},
                           // 3, where every other module starts at 30: a narrow graph by design.
                           {Cpu_GraphWidth, T::TruncatedInteger, 3},
                           {Cpu_AverageMultiProcessors, T::Bool, kYes},
                           {Cpu_Text_DisplayAverage, T::Bool, kNo},
                           {CPU_GraphAsLine, T::Bool, kNo},
                           {CPU_LineAsBold, T::Bool, kNo},
                           {Cpu_ShowMyLabel, T::Bool, kNone}},
                          CPU_EnaMenu_Amon, CPU_EnaMenu_Cnsl, CPU_EnaMenu_Tmnl),
            colors({"A01", "A02", "A03", "A04", "A05", "A06", "A07"}), sharedPictures("L01", {})};
}

ModuleSchema memory()
{
    return {withToolItems({{MemoryItemSortArray, T::Array, ints({1, 2, 3, 4, 5})},
                           {Memory_Unit, T::Integer, 1},
                           {Memory_Display_Graph, T::Bool, kNo},
                           {Memory_Display_LevelBar, T::Bool, kNo},
                           {Memory_Display_CircleMeter, T::Bool, kYes},
                           {Memory_Display_Text, T::Bool, kYes},
                           {Memory_Display_DetailText, T::Bool, kNo},
                           {Memory_UpdateInterval, T::TruncatedInteger, 5},
                           {Memory_GraphWidth, T::TruncatedInteger, 30},
                           {Memory_Text_WithLongLabel, T::Bool, kNo},
                           {Memory_DetailText_WithLongLabel, T::Bool, kNo},
                           {Memory_TradMemoryInfo, T::Bool, kNo},
                           {Memory_ShowMyLabel, T::Bool, kNone}},
                          Memory_EnaMenu_Amon, Memory_EnaMenu_Cnsl, Memory_EnaMenu_Tmnl),
            colors({"B01", "B02", "B03", "B04", "B05", "B06", "B07", "B08", "B09", "B10"}), sharedPictures("L02", {})};
}

ModuleSchema network()
{
    return {withToolItems({{NetworkItemSortArray, T::Array, ints({1, 2, 3, 4})},
                           {Network_Display_UdLabel, T::Bool, kNo},
                           {Network_Display_UdCircle, T::Bool, kNo},
                           {Network_Display_Graph, T::Bool, kYes},
                           {Network_Display_Text, T::Bool, kYes},
                           {Network_UdLabel_Mode, T::Integer, 1},
                           {Network_Graph_Mode, T::Integer, 1},
                           {Network_Text_Mode, T::Integer, 1},
                           {Network_Limen_Base, T::Integer, 1},
                           {Network_UpdateInterval, T::TruncatedInteger, 2},
                           {Network_GraphWidth, T::TruncatedInteger, 30},
                           {Network_ShowAllNic, T::Bool, kNone},
                           {Network_ShowMyLabel, T::Bool, kNone}},
                          Network_EnaMenu_Amon, Network_EnaMenu_Cnsl, Network_EnaMenu_Tmnl),
            colors({"C01", "C02", "C03", "C04"}),
            sharedPictures("L03", {{"O21", PictureSize::Icon18}, {"O22", PictureSize::Icon18}})};
}

ModuleSchema disk()
{
    return {withToolItems({{DiskItemSortArray, T::Array, ints({1, 2, 3})},
                           {Disk_Display_Indicator, T::Bool, kYes},
                           {Disk_Display_Graph, T::Bool, kNo},
                           {Disk_Display_Text, T::Bool, kNo},
                           {Disk_ShowEachDisk, T::Bool, kYes},
                           {Disk_WithDiskIconInBackground, T::Bool, kNo},
                           {Disk_UpdateInterval, T::TruncatedInteger, 2},
                           {Disk_GraphWidth, T::TruncatedInteger, 30},
                           {Disk_Indicator_Label, T::Integer, 1},
                           {Disk_Graph_Label, T::Integer, 1},
                           {Disk_Graph_Mode, T::Integer, 1},
                           {Disk_Text_Label, T::Integer, 1},
                           {Disk_Percent_Mode, T::Integer, 1},
                           {Disk_ShowMyLabel, T::Bool, kNone}},
                          Disk_EnaMenu_Amon, Disk_EnaMenu_Cnsl, Disk_EnaMenu_Tmnl),
            colors({"D01", "D02", "D03", "D04"}),
            // The volume kinds stand behind per-disk sets when disk pictures are asked for.
            sharedPictures("L04", {{"M01", PictureSize::Half},
                                   {"M02", PictureSize::Half},
                                   {"M03", PictureSize::Half},
                                   {"M04", PictureSize::Half},
                                   {"M05", PictureSize::Half},
                                   {"M06", PictureSize::Half},
                                   {"O31", PictureSize::Icon18},
                                   {"O32", PictureSize::Icon18}})};
}

ModuleSchema volume()
{
    return {withToolItems({{VlmsItemSortArray, T::Array, ints({1, 2, 3, 4, 5})},
                           {Vlms_Display_BarChart, T::Bool, kYes},
                           {Vlms_Display_CycleChart, T::Bool, kNo},
                           {Vlms_Display_Graph, T::Bool, kNo},
                           {Vlms_Display_Text, T::Bool, kNo},
                           {Vlms_Display_Percent, T::Bool, kNo},
                           {Vlms_GraphAsLine, T::Bool, kNo},
                           {Vlms_LineAsBold, T::Bool, kNo},
                           {Vlms_ShowEachDisk, T::Bool, kYes},
                           {Vlms_WithDiskIconInBackground, T::Bool, kNo},
                           {Vlms_UpdateInterval, T::TruncatedInteger, 5},
                           {Vlms_GraphWidth, T::TruncatedInteger, 30},
                           {Vlms_Text_Label, T::Integer, 1},
                           {Vlms_Percent_Mode, T::Integer, 1},
                           {Vlms_ColoredValue, T::Bool, kNone},
                           {Vlms_GradientColor, T::Bool, kNone},
                           {Vlms_ShowMyLabel, T::Bool, kNone}},
                          Volume_EnaMenu_Amon, Volume_EnaMenu_Cnsl, Volume_EnaMenu_Tmnl),
            colors({"E01", "E02", "E03", "E04", "E05", "E06", "E07"}),
            sharedPictures("L05", {{"M01", PictureSize::Half},
                                   {"M02", PictureSize::Half},
                                   {"M03", PictureSize::Half},
                                   {"M04", PictureSize::Half},
                                   {"M05", PictureSize::Half},
                                   {"M06", PictureSize::Half},
                                   {"M11", PictureSize::Icon18},
                                   {"M12", PictureSize::Icon18},
                                   {"O31", PictureSize::Icon18},
                                   {"O32", PictureSize::Icon18}})};
}

ModuleSchema temp()
{
    return {withToolItems({{TempItemSortArray, T::Array, ints({1, 2})},
                           {Temp_Display_Text, T::Bool, kYes},
                           {Temp_Display_Graph, T::Bool, kYes},
                           {Temp_PileUp_TextGraph, T::Bool, kYes},
                           {Temp_AccessForSmartDisks, T::Bool, kNo},
                           {Temp_ColoredMenu, T::Bool, kNo},
                           {Temp_UpdateInterval, T::TruncatedInteger, 5},
                           {Temp_GraphWidth, T::TruncatedInteger, 30},
                           {Temp_Unit_Mode, T::Integer, 1},
                           {Temp_ShowTempOnMenu, T::String, QStringLiteral("(Average)")},
                           {Temp_GradientColor, T::Bool, kNone},
                           {Temp_MaxTemp, T::Integer, kNone},
                           {Temp_ShowMyLabel, T::Bool, kNone}},
                          Temp_EnaMenu_Amon, Temp_EnaMenu_Cnsl, Temp_EnaMenu_Tmnl),
            colors({"F01", "F02", "F03", "F04"}), sharedPictures("L06", {})};
}

ModuleSchema fan()
{
    return {withToolItems({{FanItemSortArray, T::Array, ints({1, 2})},
                           {Fan_Display_Text, T::Bool, kYes},
                           {Fan_Display_Graph, T::Bool, kYes},
                           {Fan_PileUp_TextGraph, T::Bool, kYes},
                           {Fan_ColoredMenu, T::Bool, kNo},
                           {Fan_UpdateInterval, T::TruncatedInteger, 5},
                           {Fan_GraphWidth, T::TruncatedInteger, 30},
                           {Fan_GradientColor, T::Bool, kNone},
                           {Fax_MaxRpm, T::Integer, kNone},
                           {Fan_ShowMyLabel, T::Bool, kNone}},
                          Fan_EnaMenu_Amon, Fan_EnaMenu_Cnsl, Fan_EnaMenu_Tmnl),
            colors({"G01", "G02", "G03", "G04"}), sharedPictures("L07", {})};
}

ModuleSchema vnc()
{
    return {
        withToolItems(
            {{Vnc_ShowMenu, T::Bool, kNo}, {Vnc_AddMenuOpenAll, T::Bool, kNo}, {Vnc_ClientSortArray, T::Array, kNone}},
            Vnc_EnaMenu_Amon, Vnc_EnaMenu_Cnsl, Vnc_EnaMenu_Tmnl),
        colors({}), [] {
            auto pictures = sharedPictures("L08", {{"O41", PictureSize::Icon18}, {"O42", PictureSize::Icon18}});
            pictures.insert(pictures.begin(), {"N03", PictureSize::Half});
            return pictures;
        }()};
}

} // namespace

const ModuleSchema& moduleSchema(ModuleId id)
{
    static const std::array<ModuleSchema, 9> schemas = {general(), cpu(),  memory(), network(), disk(),
                                                        volume(),  temp(), fan(),    vnc()};
    return schemas[static_cast<std::size_t>(id)];
}
