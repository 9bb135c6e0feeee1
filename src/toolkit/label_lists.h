// The ordered display labels that unit-mode and choice settings select from.
#pragma once

#include <QList>
#include <QStringList>

namespace GeneralFunctions {

// "°C", "°F", "K", picked by Temp_Unit_Mode. Unit symbols are not translated.
QStringList retTempUnit();

} // namespace GeneralFunctions

namespace PlistFunction {

// Graph styles: "Default", "Opposed", "Centered", "Line Graph", "Line Graph (Heavy line)".
QStringList retGeneralGraphKind();
// Memory units: "Automatic", "Unify in MB", "Unify in GB".
QStringList retMemoryUnit();
// Network text units: bytes first, then bits.
QStringList retNetworkBitOrByte();
// Network (upload, download) label pairs, picked by Network_UdLabel_Mode.
QList<QStringList> retNetworkUdLabel();
// Disk (read, write) label pairs, picked by Disk_Indicator_Label.
QList<QStringList> retDiskReadWrite();
// Volume percentage choices: "Show Used", "Show Free".
QStringList retVolumePercentKind();
// Volume (used, free) label pairs, picked by Vlms_Text_Label.
QList<QStringList> retVolumeUsedFree();

// The entry that a 1-based setting value selects. Settings come from a user-editable store,
// so a value outside the list falls back to the first entry (an empty list gives T()).
template <typename T>
T labelForSetting(const QList<T>& labels, qint64 settingValue)
{
    if (labels.isEmpty())
        return T();
    if (settingValue < 1 || settingValue > labels.size())
        return labels.first();
    return labels.at(settingValue - 1);
}

} // namespace PlistFunction
