// Sizing the Memory status item: the text boxes and the width rule.
#pragma once

#include "modules/memory/memory_picture_settings.h"

#include <cstdint>

// The boxes of the two text elements in points, each a header and a value column.
struct MemoryTextWidths {
    static constexpr double kColumnGap = 4; // between the detail text's two columns

    double header = 0;      // text: "Used:" / "Free:", or "U:" / "F:" without long labels
    double detailLeft = 0;  // detail text, left column
    double detailRight = 0; // detail text, right column
    double value = 0;       // the widest figure the machine's memory can give in the chosen unit

    double text() const { return header + value; }
    double detail() const { return detailLeft + kColumnGap + detailRight; }
    bool operator==(const MemoryTextWidths&) const = default;
};

// Headers from the derived header widths, values measured in the theme's font: the widest
// text calcMemorySize gives for up to totalBytes in the chosen unit, so the picture
// does not jitter as the figures change. Measures text: keep the result while the settings
// and the total stay the same.
MemoryTextWidths memoryTextWidths(const MemoryPictureSettings& settings, std::int64_t totalBytes);

// How many of the five elements (graph, level bar, meter, text, detail text) are switched on.
int memoryShownElementCount(const MemoryPictureSettings& settings);

// The picture's width at the bar's height: every shown element followed by the spacing, plus
// 12 for the label; the last spacing becomes a 4-point end margin. 0 when nothing is shown.
double memoryBarWidth(const MemoryPictureSettings& settings, const MemoryTextWidths& widths, double height);
