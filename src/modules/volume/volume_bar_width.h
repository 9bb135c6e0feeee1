// Sizing the Volume status item: which volumes get a set of elements, and the picture's width.
#pragma once

#include "collect/storage_descriptions.h"
#include "modules/storage_pictures.h"
#include "modules/volume/volume_picture_settings.h"

#include <vector>

// Width of the bar chart, in points.
inline constexpr double kVolumeBarChartWidth = 7;

// Each described volume in path order when a set per volume is asked for, else one combined set.
std::vector<StorageBarSet> volumeBarSets(const VolumePictureSettings& settings, const VolumeBaseDict& volumeBaseDict);

// How many of the five elements (bar chart, cycle chart, graph, text, percentage) are on.
int volumeShownElementCount(const VolumePictureSettings& settings);

// The text element: its label column (and a point of gap) when the labels are not empty, then
// the sizes.
double volumeTextWidth(const VolumePictureSettings& settings);

// One set's shown elements at the bar's height, each followed by the spacing.
double volumeSetWidth(const VolumePictureSettings& settings, double height, double spacing);

// The picture's width in points: every set's elements with their spacing, plus 12 for the label;
// then the last spacing becomes a 4-point end margin. 0 when no element is shown.
double volumeBarWidth(const VolumePictureSettings& settings, std::size_t setCount, double height);
