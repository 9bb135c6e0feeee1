// The pictures Disk and Volume share: kind pictures, their sets of elements, and the common layout.
#pragma once

#include "collect/storage_descriptions.h"
#include "modules/picture_label.h"
#include "prefs/module_defaults.h"
#include "toolkit/menu_geometry.h"

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QString>

#include <array>
#include <vector>

// The theme's kind pictures, M01 to M06, then the menu-sized disks O31 and O32. The description
// knows only internal, external and network; the kernel's name tells optical drives (sr) and
// disk images (loop) apart, and a removable medium is told from a fixed external disk by its flag.
enum class StoragePicture { Internal, External, Removable, Network, Optical, DiskImage, MenuInternal, MenuExternal };

StoragePicture volumePicture(VolumeIconKind kind, const QString& bsdName, bool removable = false);
// The menu-sized disk pictures: internal, or anything else.
StoragePicture diskMenuPicture(VolumeIconKind kind);

struct StoragePictures {
    std::array<ThemePicture, 8> pictures;
    const ThemePicture& operator[](StoragePicture which) const { return pictures[static_cast<std::size_t>(which)]; }
};

// What the Disk and Volume pictures have in common besides the basics.
struct StorageBasics : PictureBasics {
    bool eachSet = false;         // a set of elements per disk or volume instead of one for all
    bool backgroundIcons = false; // the kind picture faintly behind each set
    StoragePictures pictures;
};

// eachKey, iconKey: the settings that switch a set per disk or volume and the background pictures on.
StorageBasics storageBasics(const ModuleDefaults& defaults, const char* showKey, const char* pictureKey,
                            const char* orderKey, const char* eachKey, const char* iconKey);

// One set of elements: a disk or volume of the description, or all together (empty key).
struct StorageBarSet {
    QString key; // "/dev/sda", or a mount point
    StoragePicture picture = StoragePicture::Internal;
};

// Each described entry in key order when eachSet is on, else one combined set. The combined set
// also stands in while nothing is known, so the item never vanishes for want of a disk.
template <class Dict, class PictureOf>
std::vector<StorageBarSet> storageBarSets(bool eachSet, const Dict& dict, PictureOf pictureOf)
{
    std::vector<StorageBarSet> sets;
    if (eachSet) {
        sets.reserve(dict.size());
        for (const auto& [key, entry] : dict)
            sets.push_back({key, pictureOf(entry)});
    }
    if (sets.empty())
        sets.push_back({QString(), StoragePicture::Internal});
    return sets;
}

// The picture's width in points from one set's width at the spacing: every set's elements with
// their spacing, plus 12 for the label; then the last spacing becomes a 4-point end margin.
// 0 when no element is shown.
template <class SetWidth>
double storageBarWidth(int shownElements, std::size_t setCount, bool showLabel, SetWidth setWidth)
{
    if (shownElements == 0)
        return 0;
    const double s = TvlClasses::retStatusMenuInsets(shownElements).spacing;
    double width = setWidth(s) * static_cast<double>(setCount);
    if (showLabel)
        width += kModuleLabelWidth;
    return width - s + 4;
}

// Draws the picture faintly into a 14-point square at the left of a set's elements (no wider
// than span, between bottom and top, centred in height), so the elements drawn over it stay
// readable. The painter is y-up.
void drawBackgroundPicture(QPainter& painter, const QImage& picture, double left, double span, double bottom,
                           double top);

// A theme picture as a menu item's icon, at the size the theme gives it; none without a picture.
QIcon storageMenuIcon(const ThemePicture& picture);
