// Theme entries that the Fan picture is drawn with.
#pragma once

// Settings names live in PrefKey; these are the resolved theme colours and pictures of the Fan
// working dictionary, named as the theme files name them.
namespace FanThemeKey {

inline constexpr char G01[] = "G01"; // below 70% of the maximum
inline constexpr char G02[] = "G02"; // from 70%
inline constexpr char G03[] = "G03"; // from 90%
inline constexpr char G04[] = "G04"; // text
inline constexpr char L07[] = "L07"; // label icon

} // namespace FanThemeKey
