// Theme entries that the Network picture is drawn with.
#pragma once

namespace NetworkThemeKey {

inline constexpr char C01[] = "C01"; // upload
inline constexpr char C02[] = "C02"; // download
inline constexpr char C03[] = "C03"; // lamp frame
inline constexpr char C04[] = "C04"; // lamp off
inline constexpr char Z01[] = "Z01"; // text shadow
inline constexpr char Z03[] = "Z03"; // empty-graph underline
inline constexpr char L03[] = "L03"; // label icon
inline constexpr char O22[] = "O22"; // icon of the network settings item

} // namespace NetworkThemeKey
