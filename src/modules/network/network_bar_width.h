// Sizing the Network status item: the width rule.
#pragma once

#include "modules/network/network_picture_settings.h"

// How many of the four elements (labels, lamps, graph, text) are switched on. The labels count
// for the layout, though they alone do not keep the module running.
int networkShownElementCount(const NetworkPictureSettings& settings);

// The picture's width: every shown element followed by the spacing, plus 12 for the label;
// the last spacing becomes a 4-point end margin. 0 when nothing is shown.
double networkBarWidth(const NetworkPictureSettings& settings);
