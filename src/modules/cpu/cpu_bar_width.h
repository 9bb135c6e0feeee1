// Sizing the CPU status item: its width, and the sample it shows before the first measurement.
#pragma once

#include "collect/cpu_sample.h"
#include "modules/cpu/cpu_picture_settings.h"

#include <cstddef>

// The picture's width in points for coreCount cores at the bar's height: every shown element
// once (averaged) or once per core, each followed by the spacing, plus 12 for the label; then
// the last spacing becomes a 4-point end margin. 0 when no element is shown.
// How many of the four elements (graph, level bar, meter, text) are switched on.
int cpuShownElementCount(const CpuPictureSettings& settings);

double cpuBarWidth(const CpuPictureSettings& settings, std::size_t coreCount, double height);

// A sample of processors cores and the machine, every count 0: the picture then shows its
// elements empty and its texts at 0% until the first measurement arrives.
CpuSample zeroCpuSample(std::size_t processors);
