// Sizing the Disk status item: which disks get a set of elements, and the picture's width.
#pragma once

#include "collect/storage_descriptions.h"
#include "modules/disk/disk_picture_settings.h"
#include "modules/storage_pictures.h"

#include <vector>

// Diameter of the read and write lamps, in points.
inline constexpr double kDiskLampDiameter = 7;

// The described disks the module shows: those with hardware of their own, and the others too
// when the settings ask for them.
DiskBaseDict shownDisks(const DiskPictureSettings& settings, const DiskBaseDict& diskBaseDict);

// Each shown disk in key order when a set per disk is asked for, else one combined set.
std::vector<StorageBarSet> diskBarSets(const DiskPictureSettings& settings, const DiskBaseDict& diskBaseDict);

// How many of the three elements (indicator, graph, text) are switched on.
int diskShownElementCount(const DiskPictureSettings& settings);

// Each element's width: its label column (and a point of gap) when the label list is not empty,
// then the lamps, the graph or the figures.
double diskIndicatorWidth(const DiskPictureSettings& settings);
double diskGraphElementWidth(const DiskPictureSettings& settings);
double diskTextWidth(const DiskPictureSettings& settings);

// One set's shown elements, each followed by the spacing.
double diskSetWidth(const DiskPictureSettings& settings, double spacing);

// The picture's width in points: every set's elements with their spacing, plus 12 for the label;
// then the last spacing becomes a 4-point end margin. 0 when no element is shown.
double diskBarWidth(const DiskPictureSettings& settings, std::size_t setCount);
