// Theme entries that the Memory picture is drawn with.
#pragma once

namespace MemoryThemeKey {

inline constexpr char B01[] = "B01"; // wired
inline constexpr char B02[] = "B02"; // active; application memory in the application view
inline constexpr char B03[] = "B03"; // inactive; cached files in the application view
inline constexpr char B04[] = "B04"; // compressed
inline constexpr char B05[] = "B05"; // free (faint: an open menu's meter counts it as empty)
inline constexpr char B06[] = "B06"; // frame of level bar and cycle meter
inline constexpr char B07[] = "B07"; // text
inline constexpr char B08[] = "B08"; // pressure low
inline constexpr char B09[] = "B09"; // pressure warning
inline constexpr char B10[] = "B10"; // pressure critical
inline constexpr char Z01[] = "Z01"; // text shadow
inline constexpr char Z03[] = "Z03"; // empty-graph underline
inline constexpr char L02[] = "L02"; // label icon

} // namespace MemoryThemeKey
