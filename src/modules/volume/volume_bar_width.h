// Sizing the Volume status item: which volumes get a set of elements, and the picture's width.
#pragma once

#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"

#include <QString>

#include <vector>

// Width of the bar chart, in points.
inline constexpr double kVolumeBarChartWidth = 7;

// One set of elements: a mounted volume, or all volumes together (empty path).
struct VolumeBarSet {
    QString path;       // mount point
    QString pictureKey; // the theme picture behind it, when icons are asked for
};

// Each described volume in path order when Vlms_ShowEachDisk is on, else one combined set. The
// combined set also stands in while no volume is known, so the item never vanishes for want of one.
std::vector<VolumeBarSet> volumeBarSets(const ModuleDefaults& myDefaults, const VolumeBaseDict& volumeBaseDict);

// How many of the five elements (bar chart, cycle chart, graph, text, percentage) are on.
int volumeShownElementCount(const ModuleDefaults& myDefaults);

// The text element: its label column (and a point of gap) when the labels are not empty, then
// the sizes.
double volumeTextWidth(const ModuleDefaults& myDefaults);

// One set's shown elements at the bar's height, each followed by the spacing.
double volumeSetWidth(const ModuleDefaults& myDefaults, double height, double spacing);

// The picture's width in points: every set's elements with their spacing, plus 12 for the label;
// then the last spacing becomes a 4-point end margin. 0 when no element is shown.
double volumeBarWidth(const ModuleDefaults& myDefaults, std::size_t setCount, double height);
