// Theme entries that the Volume picture and menu are drawn with.
#pragma once

// Settings names live in PrefKey; these are the resolved theme colours and pictures of the
// Volume working dictionary, named as the theme files name them.
namespace VolumeThemeKey {

inline constexpr char E01[] = "E01"; // used space, below 70%
inline constexpr char E02[] = "E02"; // used space, from 70%
inline constexpr char E03[] = "E03"; // used space, from 90%
inline constexpr char E04[] = "E04"; // free space
inline constexpr char E05[] = "E05"; // frame of bar and meter
inline constexpr char E06[] = "E06"; // text: labels and sizes
inline constexpr char E07[] = "E07"; // percentage
inline constexpr char Z01[] = "Z01"; // text shadow, shared by every module
inline constexpr char Z03[] = "Z03"; // empty-graph underline, shared by every module
inline constexpr char L05[] = "L05"; // label icon
inline constexpr char M11[] = "M11"; // eject
inline constexpr char M12[] = "M12"; // open in the file manager

} // namespace VolumeThemeKey
