// Theme entries that the CPU picture is drawn with.
#pragma once

// Settings names live in PrefKey; these are the resolved theme colours and pictures of the
// CPU working dictionary, named as the theme files name them.
namespace CpuThemeKey {

inline constexpr char A01[] = "A01"; // user share
inline constexpr char A02[] = "A02"; // system share
inline constexpr char A03[] = "A03"; // nice share
inline constexpr char A04[] = "A04"; // idle share
inline constexpr char A05[] = "A05"; // frame of level bar and cycle meter
inline constexpr char A07[] = "A07"; // combined percentage text
inline constexpr char Z01[] = "Z01"; // text shadow, shared by every module
inline constexpr char Z03[] = "Z03"; // empty-graph underline, shared by every module
inline constexpr char L01[] = "L01"; // label icon

} // namespace CpuThemeKey
