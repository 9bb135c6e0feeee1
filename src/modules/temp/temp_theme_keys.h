// Theme entries that the Temp picture is drawn with.
#pragma once

// Settings names live in PrefKey; these are the resolved theme colours and pictures of the Temp
// working dictionary, named as the theme files name them.
namespace TempThemeKey {

inline constexpr char F01[] = "F01"; // below 70% of the maximum
inline constexpr char F02[] = "F02"; // from 70%
inline constexpr char F03[] = "F03"; // from 90%
inline constexpr char F04[] = "F04"; // text
inline constexpr char L06[] = "L06"; // label icon

} // namespace TempThemeKey
