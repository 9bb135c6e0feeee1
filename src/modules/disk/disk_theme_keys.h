// Theme entries that the Disk picture and menu are drawn with.
#pragma once

// Settings names live in PrefKey; these are the resolved theme colours and pictures of the
// Disk working dictionary, named as the theme files name them.
namespace DiskThemeKey {

inline constexpr char D01[] = "D01"; // read: lamp, graph, text
inline constexpr char D02[] = "D02"; // write: lamp, graph, text
inline constexpr char D03[] = "D03"; // lamp frame
inline constexpr char D04[] = "D04"; // lamp off
inline constexpr char Z01[] = "Z01"; // text shadow, shared by every module
inline constexpr char Z03[] = "Z03"; // empty-graph underline, shared by every module
inline constexpr char L04[] = "L04"; // label icon

} // namespace DiskThemeKey
