// Every settings, working-dictionary and theme key name, spelled once.
#pragma once

#include <QtGlobal>

// Keys keep their historic spellings ("Fax_MaxRpm", both "Vlms_" and "Volume_") so that
// stored values are found.
namespace PrefKey {

// Application
inline constexpr char AppVersion[] = "AppVersion";
inline constexpr char UpdateAlerting[] = "UpdateAlerting";
inline constexpr char DisplayTopWindowAtStartupTmp[] = "DisplayTopWindowAtStartupTmp";
inline constexpr char MacRawName[] = "MacRawName";
inline constexpr char MacRealName[] = "MacRealName";
inline constexpr char MacImage[] = "MacImage";
inline constexpr char RemovedTempKeys[] = "RemovedTempKeys";
inline constexpr char DdnsPropertyString[] = "DdnsPropertyString";
inline constexpr char NowGlobalIpAddr[] = "NowGlobalIpAddr";
// Address-echo services (an array of URL strings) that replace the built-in table when not empty.
inline constexpr char GlobalIpServiceList[] = "GlobalIpServiceList";
// Where the update check reads the published version, and the page its notice opens; the
// built-in addresses apply while a key is absent; an empty text means the user wants none.
inline constexpr char UpdateVersionFileURL[] = "UpdateVersionFileURL";
inline constexpr char DownloadPageURL[] = "DownloadPageURL";
// The web search the CPU panel opens for the machine's name (query key "q").
inline constexpr char MachineSearchAddress[] = "MachineSearchAddress";

// General
inline constexpr char TopItemSortArray[] = "TopItemSortArray";
inline constexpr char DisplayMyMenuIcon[] = "DisplayMyMenuIcon";
inline constexpr char TopHistgramPreview[] = "TopHistgramPreview";
inline constexpr char DisplayTopWindowAtStartup[] = "DisplayTopWindowAtStartup";
inline constexpr char DenyUpdateNotif[] = "DenyUpdateNotif";
inline constexpr char AutoLaunchAtLogin[] = "AutoLaunchAtLogin";
inline constexpr char kRebootRegularlyDays[] = "kRebootRegularlyDays";
inline constexpr char Cpu_ShowMyLabel[] = "Cpu_ShowMyLabel";
inline constexpr char Memory_ShowMyLabel[] = "Memory_ShowMyLabel";
inline constexpr char Network_ShowMyLabel[] = "Network_ShowMyLabel";
inline constexpr char Disk_ShowMyLabel[] = "Disk_ShowMyLabel";
inline constexpr char Vlms_ShowMyLabel[] = "Vlms_ShowMyLabel";
inline constexpr char Temp_ShowMyLabel[] = "Temp_ShowMyLabel";
inline constexpr char Fan_ShowMyLabel[] = "Fan_ShowMyLabel";
// The alert rules of every module: an array of dictionaries with the AlertRuleKey entries.
inline constexpr char AlertRules[] = "AlertRules";

// General launch flags (derived, in memory)
inline constexpr char LaunchCpus[] = "LaunchCpus";
inline constexpr char LaunchMemo[] = "LaunchMemo";
inline constexpr char LaunchNetw[] = "LaunchNetw";
inline constexpr char LaunchDisk[] = "LaunchDisk";
inline constexpr char LaunchVolume[] = "LaunchVolume";
inline constexpr char LaunchTemp[] = "LaunchTemp";
inline constexpr char LaunchFans[] = "LaunchFans";
inline constexpr char LaunchVNC[] = "LaunchVNC";

// CPU
inline constexpr char CpuItemSortArray[] = "CpuItemSortArray";
inline constexpr char Cpu_Display_Graph[] = "Cpu_Display_Graph";
inline constexpr char Cpu_Display_LevelBar[] = "Cpu_Display_LevelBar";
inline constexpr char Cpu_Display_CircleMeter[] = "Cpu_Display_CircleMeter";
inline constexpr char Cpu_Display_Text[] = "Cpu_Display_Text";
inline constexpr char Cpu_UpdateInterval[] = "Cpu_UpdateInterval";
inline constexpr char Cpu_GraphWidth[] = "Cpu_GraphWidth";
inline constexpr char Cpu_AverageMultiProcessors[] = "Cpu_AverageMultiProcessors";
inline constexpr char Cpu_Text_DisplayAverage[] = "Cpu_Text_DisplayAverage";
inline constexpr char CPU_GraphAsLine[] = "CPU_GraphAsLine";
inline constexpr char CPU_LineAsBold[] = "CPU_LineAsBold";
inline constexpr char CPU_EnaMenu_Amon[] = "CPU_EnaMenu_Amon";
inline constexpr char CPU_EnaMenu_Cnsl[] = "CPU_EnaMenu_Cnsl";
inline constexpr char CPU_EnaMenu_Tmnl[] = "CPU_EnaMenu_Tmnl";

// Memory
inline constexpr char MemoryItemSortArray[] = "MemoryItemSortArray";
inline constexpr char Memory_Unit[] = "Memory_Unit";
inline constexpr char Memory_Display_Graph[] = "Memory_Display_Graph";
inline constexpr char Memory_Display_LevelBar[] = "Memory_Display_LevelBar";
inline constexpr char Memory_Display_CircleMeter[] = "Memory_Display_CircleMeter";
inline constexpr char Memory_Display_Text[] = "Memory_Display_Text";
inline constexpr char Memory_Display_DetailText[] = "Memory_Display_DetailText";
inline constexpr char Memory_UpdateInterval[] = "Memory_UpdateInterval";
inline constexpr char Memory_GraphWidth[] = "Memory_GraphWidth";
inline constexpr char Memory_Text_WithLongLabel[] = "Memory_Text_WithLongLabel";
inline constexpr char Memory_DetailText_WithLongLabel[] = "Memory_DetailText_WithLongLabel";
inline constexpr char Memory_TradMemoryInfo[] = "Memory_TradMemoryInfo";
inline constexpr char Memory_EnaMenu_Amon[] = "Memory_EnaMenu_Amon";
inline constexpr char Memory_EnaMenu_Cnsl[] = "Memory_EnaMenu_Cnsl";
inline constexpr char Memory_EnaMenu_Tmnl[] = "Memory_EnaMenu_Tmnl";

// Network
inline constexpr char NetworkItemSortArray[] = "NetworkItemSortArray";
inline constexpr char Network_Display_UdLabel[] = "Network_Display_UdLabel";
inline constexpr char Network_Display_UdCircle[] = "Network_Display_UdCircle";
inline constexpr char Network_Display_Graph[] = "Network_Display_Graph";
inline constexpr char Network_Display_Text[] = "Network_Display_Text";
inline constexpr char Network_UdLabel_Mode[] = "Network_UdLabel_Mode";
inline constexpr char Network_Graph_Mode[] = "Network_Graph_Mode";
inline constexpr char Network_Text_Mode[] = "Network_Text_Mode";
inline constexpr char Network_Limen_Base[] = "Network_Limen_Base";
inline constexpr char Network_UpdateInterval[] = "Network_UpdateInterval";
inline constexpr char Network_GraphWidth[] = "Network_GraphWidth";
inline constexpr char Network_ShowAllNic[] = "Network_ShowAllNic";
inline constexpr char Network_EnaMenu_Amon[] = "Network_EnaMenu_Amon";
inline constexpr char Network_EnaMenu_Cnsl[] = "Network_EnaMenu_Cnsl";
inline constexpr char Network_EnaMenu_Tmnl[] = "Network_EnaMenu_Tmnl";

// Disk
inline constexpr char DiskItemSortArray[] = "DiskItemSortArray";
inline constexpr char Disk_Display_Indicator[] = "Disk_Display_Indicator";
inline constexpr char Disk_Display_Graph[] = "Disk_Display_Graph";
inline constexpr char Disk_Display_Text[] = "Disk_Display_Text";
inline constexpr char Disk_ShowEachDisk[] = "Disk_ShowEachDisk";
inline constexpr char Disk_WithDiskIconInBackground[] = "Disk_WithDiskIconInBackground";
// Devices without hardware of their own (loop, device-mapper, md, zram) get sets and menu blocks.
inline constexpr char Disk_ShowVirtualDisks[] = "Disk_ShowVirtualDisks";
inline constexpr char Disk_UpdateInterval[] = "Disk_UpdateInterval";
inline constexpr char Disk_GraphWidth[] = "Disk_GraphWidth";
inline constexpr char Disk_Indicator_Label[] = "Disk_Indicator_Label";
inline constexpr char Disk_Graph_Label[] = "Disk_Graph_Label";
inline constexpr char Disk_Graph_Mode[] = "Disk_Graph_Mode";
inline constexpr char Disk_Text_Label[] = "Disk_Text_Label";
inline constexpr char Disk_Percent_Mode[] = "Disk_Percent_Mode";
inline constexpr char Disk_EnaMenu_Amon[] = "Disk_EnaMenu_Amon";
inline constexpr char Disk_EnaMenu_Cnsl[] = "Disk_EnaMenu_Cnsl";
inline constexpr char Disk_EnaMenu_Tmnl[] = "Disk_EnaMenu_Tmnl";

// Volume
inline constexpr char VlmsItemSortArray[] = "VlmsItemSortArray";
inline constexpr char Vlms_Display_BarChart[] = "Vlms_Display_BarChart";
inline constexpr char Vlms_Display_CycleChart[] = "Vlms_Display_CycleChart";
inline constexpr char Vlms_Display_Graph[] = "Vlms_Display_Graph";
inline constexpr char Vlms_Display_Text[] = "Vlms_Display_Text";
inline constexpr char Vlms_Display_Percent[] = "Vlms_Display_Percent";
inline constexpr char Vlms_GraphAsLine[] = "Vlms_GraphAsLine";
inline constexpr char Vlms_LineAsBold[] = "Vlms_LineAsBold";
inline constexpr char Vlms_ShowEachDisk[] = "Vlms_ShowEachDisk";
inline constexpr char Vlms_WithDiskIconInBackground[] = "Vlms_WithDiskIconInBackground";
inline constexpr char Vlms_UpdateInterval[] = "Vlms_UpdateInterval";
inline constexpr char Vlms_GraphWidth[] = "Vlms_GraphWidth";
inline constexpr char Vlms_Text_Label[] = "Vlms_Text_Label";
inline constexpr char Vlms_Percent_Mode[] = "Vlms_Percent_Mode";
inline constexpr char Vlms_ColoredValue[] = "Vlms_ColoredValue";
inline constexpr char Vlms_GradientColor[] = "Vlms_GradientColor";
inline constexpr char Volume_EnaMenu_Amon[] = "Volume_EnaMenu_Amon";
inline constexpr char Volume_EnaMenu_Cnsl[] = "Volume_EnaMenu_Cnsl";
inline constexpr char Volume_EnaMenu_Tmnl[] = "Volume_EnaMenu_Tmnl";

// Temp
inline constexpr char TempItemSortArray[] = "TempItemSortArray";
inline constexpr char Temp_Display_Text[] = "Temp_Display_Text";
inline constexpr char Temp_Display_Graph[] = "Temp_Display_Graph";
inline constexpr char Temp_PileUp_TextGraph[] = "Temp_PileUp_TextGraph";
inline constexpr char Temp_AccessForSmartDisks[] = "Temp_AccessForSmartDisks";
inline constexpr char Temp_ColoredMenu[] = "Temp_ColoredMenu";
inline constexpr char Temp_UpdateInterval[] = "Temp_UpdateInterval";
inline constexpr char Temp_GraphWidth[] = "Temp_GraphWidth";
inline constexpr char Temp_Unit_Mode[] = "Temp_Unit_Mode";
inline constexpr char Temp_ShowTempOnMenu[] = "Temp_ShowTempOnMenu";
inline constexpr char Temp_GradientColor[] = "Temp_GradientColor";
inline constexpr char Temp_MaxTemp[] = "Temp_MaxTemp";
inline constexpr char Temp_EnaMenu_Amon[] = "Temp_EnaMenu_Amon";
inline constexpr char Temp_EnaMenu_Cnsl[] = "Temp_EnaMenu_Cnsl";
inline constexpr char Temp_EnaMenu_Tmnl[] = "Temp_EnaMenu_Tmnl";

// Fan
inline constexpr char FanItemSortArray[] = "FanItemSortArray";
inline constexpr char Fan_Display_Text[] = "Fan_Display_Text";
inline constexpr char Fan_Display_Graph[] = "Fan_Display_Graph";
inline constexpr char Fan_PileUp_TextGraph[] = "Fan_PileUp_TextGraph";
inline constexpr char Fan_ColoredMenu[] = "Fan_ColoredMenu";
inline constexpr char Fan_UpdateInterval[] = "Fan_UpdateInterval";
inline constexpr char Fan_GraphWidth[] = "Fan_GraphWidth";
inline constexpr char Fan_GradientColor[] = "Fan_GradientColor";
inline constexpr char Fax_MaxRpm[] = "Fax_MaxRpm";
inline constexpr char Fan_EnaMenu_Amon[] = "Fan_EnaMenu_Amon";
inline constexpr char Fan_EnaMenu_Cnsl[] = "Fan_EnaMenu_Cnsl";
inline constexpr char Fan_EnaMenu_Tmnl[] = "Fan_EnaMenu_Tmnl";

// VNC
inline constexpr char Vnc_ShowMenu[] = "Vnc_ShowMenu";
inline constexpr char Vnc_AddMenuOpenAll[] = "Vnc_AddMenuOpenAll";
inline constexpr char Vnc_ClientSortArray[] = "Vnc_ClientSortArray";
inline constexpr char Vnc_EnaMenu_Amon[] = "Vnc_EnaMenu_Amon";
inline constexpr char Vnc_EnaMenu_Cnsl[] = "Vnc_EnaMenu_Cnsl";
inline constexpr char Vnc_EnaMenu_Tmnl[] = "Vnc_EnaMenu_Tmnl";

// The display elements a module had when its switch was turned off, by module history key,
// so that switching it on again brings back the user's choice.
inline constexpr char ModuleSwitchMemory[] = "ModuleSwitchMemory";

// Theme and font entries of a working dictionary
inline constexpr char _FontName[] = "_FontName";
inline constexpr char _FontPostScriptName[] = "_FontPostScriptName";
inline constexpr char _FontStyle[] = "_FontStyle";
inline constexpr char _FontAdjust[] = "_FontAdjust";
inline constexpr char _FontSizeDiff[] = "_FontSizeDiff";
inline constexpr char _ForDarkAppearance[] = "_ForDarkAppearance";
inline constexpr char _AlternativeTheme[] = "_AlternativeTheme";
inline constexpr char PrefName[] = "PrefName";
inline constexpr char _Name[] = "_Name";
inline constexpr char _Author[] = "_Author";
inline constexpr char _Credit[] = "_Credit";
inline constexpr char _FileName[] = "_FileName";

// Derived keys of the working dictionaries
inline constexpr char CpuInnerTextWidth[] = "CpuInnerTextWidth";
inline constexpr char MemoryInnerTextHeaderWidth[] = "MemoryInnerTextHeaderWidth";
inline constexpr char MemoryInnerDetailLHeaderWidth[] = "MemoryInnerDetailLHeaderWidth";
inline constexpr char MemoryInnerDetailRHeaderWidth[] = "MemoryInnerDetailRHeaderWidth";
inline constexpr char Network_UdLabel_ModeAry[] = "Network_UdLabel_ModeAry";
inline constexpr char NetworkInnerUdLabelWidth[] = "NetworkInnerUdLabelWidth";
inline constexpr char NetworkInnerTextWidth[] = "NetworkInnerTextWidth";
inline constexpr char Disk_Indicator_LabelAry[] = "Disk_Indicator_LabelAry";
inline constexpr char Disk_Graph_LabelAry[] = "Disk_Graph_LabelAry";
inline constexpr char Disk_Text_LabelAry[] = "Disk_Text_LabelAry";
inline constexpr char DiskInnerIconAbleToBeBol[] = "DiskInnerIconAbleToBeBol";
inline constexpr char DiskInnerIndicatorLabelWidth[] = "DiskInnerIndicatorLabelWidth";
inline constexpr char DiskInnerGraphLabelWidth[] = "DiskInnerGraphLabelWidth";
inline constexpr char DiskInnerTextLabelWidth[] = "DiskInnerTextLabelWidth";
inline constexpr char DiskInnerTextValueWidth[] = "DiskInnerTextValueWidth";
inline constexpr char Vlms_Text_LabelAry[] = "Vlms_Text_LabelAry";
inline constexpr char VlmsInnerIconAbleToBeBol[] = "VlmsInnerIconAbleToBeBol";
inline constexpr char VlmsInnerTextLabelWidth[] = "VlmsInnerTextLabelWidth";
inline constexpr char VlmsInnerPercentWidth[] = "VlmsInnerPercentWidth";
// The widest size the Volume text shows, measured like the Disk rates.
inline constexpr char VlmsInnerTextValueWidth[] = "VlmsInnerTextValueWidth";
inline constexpr char TempInnerTextWidth[] = "TempInnerTextWidth";
inline constexpr char TempInnerTextMode[] = "TempInnerTextMode";
inline constexpr char TempInnerPiledFontSizeDbl[] = "TempInnerPiledFontSizeDbl";
inline constexpr char TempInnerPileUp[] = "TempInnerPileUp";
inline constexpr char Temp_Unit_ModeStr[] = "Temp_Unit_ModeStr";
inline constexpr char FanInnerTextFormat[] = "FanInnerTextFormat";
inline constexpr char FanInnerTextWidth[] = "FanInnerTextWidth";
inline constexpr char FanInnerTextMode[] = "FanInnerTextMode";
inline constexpr char FanInnerPiledFontSizeDbl[] = "FanInnerPiledFontSizeDbl";
inline constexpr char FanInnerPileUp[] = "FanInnerPileUp";

} // namespace PrefKey

// The entries of one dictionary of AlertRules.
namespace AlertRuleKey {
inline constexpr char Figure[] = "Figure"; // the watched figure's id ("CpuBusy")
inline constexpr char Above[] = "Above";   // fires over the threshold, else under it
inline constexpr char Threshold[] = "Threshold";
inline constexpr char ClearAt[] = "ClearAt";
inline constexpr char HoldSeconds[] = "HoldSeconds";
inline constexpr char Enabled[] = "Enabled";
} // namespace AlertRuleKey

// User-information keys of the preference-change notifications.
namespace NotifKey {
inline constexpr char FontChanged[] = "FontChanged";
inline constexpr char ChangeColorKey[] = "ChangeColorKey";
inline constexpr char ChangeColorVal[] = "ChangeColorVal";
inline constexpr char ModuleThemeChanged[] = "ModuleThemeChanged";
inline constexpr char ModuleAllocNow[] = "ModuleAllocNow";
inline constexpr char ModuleItemRefreshNow[] = "ModuleItemRefreshNow";
inline constexpr char ModuleDefaultReload[] = "ModuleDefaultReload";
inline constexpr char ChangeMenuCount[] = "ChangeMenuCount";
// Font values below this mean "unchanged"; names equal to kUnchangedText likewise.
inline constexpr qint64 kUnchangedNumberBelow = -9998;
inline constexpr char kUnchangedText[] = "-";
} // namespace NotifKey
