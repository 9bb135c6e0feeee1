// Temperatures as whole numbers in the user's chosen unit.
#pragma once

#include <QString>

namespace TvlClasses {

// celsius converted by unitNum (the Temp_Unit_Mode setting: 2 Fahrenheit, 3 Kelvin, anything
// else Celsius), rounded to a whole number and followed by unitStr ("45°C").
// A reading of 0 °C or less, or NaN, means "no sensor value": "--" (noAsHyphen) or "??",
// plus one more of the same character standing in for a non-empty unitStr.
QString calcTempWithUnit(float celsius, int unitNum, const QString& unitStr, bool noAsHyphen);

} // namespace TvlClasses
