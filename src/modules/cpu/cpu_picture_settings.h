// The CPU picture's and menu's settings, read from the working dictionary once per change.
#pragma once

#include "modules/picture_label.h"
#include "prefs/module_defaults.h"

#include <QColor>

#include <array>

struct CpuPictureSettings : PictureBasics {
    bool average = false; // one set of elements for the machine instead of one per core
    bool graph = false;
    bool levelBar = false;
    bool meter = false;
    bool text = false;
    bool textAverage = false; // the text shows user and system as one figure, a point larger
    double graphWidth = 0;
    bool graphAsLine = false;
    bool lineAsBold = false;
    double textWidth = 0;
    std::array<QColor, 4> shares; // user, system, nice, idle
    QColor frame;                 // of the level bar and the meter
    QColor averageText;
    // The panel's swatches: the share colours the dictionary holds, invalid where it has none.
    std::array<QColor, 4> swatches;

    // By element code: graph, level bar, meter, text.
    std::array<bool, 4> shownElements() const { return {graph, levelBar, meter, text}; }
};

CpuPictureSettings cpuPictureSettings(const ModuleDefaults& defaults);
