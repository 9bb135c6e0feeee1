// Sizing the Disk status item: which disks get a set of elements, and the picture's width.
#pragma once

#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"

#include <QString>

#include <vector>

// Diameter of the read and write lamps, in points.
inline constexpr double kDiskLampDiameter = 7;

// One set of elements: a disk of the description, or every disk together (empty key).
struct DiskBarSet {
    QString key;        // "/dev/sda"
    QString pictureKey; // the theme picture behind it, when icons are asked for
};

// Each described disk in key order when Disk_ShowEachDisk is on, else one combined set. The
// combined set also stands in while no disk is known, so the item never vanishes for want of one.
std::vector<DiskBarSet> diskBarSets(const ModuleDefaults& myDefaults, const DiskBaseDict& diskBaseDict);

// How many of the three elements (indicator, graph, text) are switched on.
int diskShownElementCount(const ModuleDefaults& myDefaults);

// Each element's width: its label column (and a point of gap) when the label list is not empty,
// then the lamps, the graph or the figures.
double diskIndicatorWidth(const ModuleDefaults& myDefaults);
double diskGraphElementWidth(const ModuleDefaults& myDefaults);
double diskTextWidth(const ModuleDefaults& myDefaults);

// One set's shown elements, each followed by the spacing.
double diskSetWidth(const ModuleDefaults& myDefaults, double spacing);

// The picture's width in points: every set's elements with their spacing, plus 12 for the label;
// then the last spacing becomes a 4-point end margin. 0 when no element is shown.
double diskBarWidth(const ModuleDefaults& myDefaults, std::size_t setCount);
