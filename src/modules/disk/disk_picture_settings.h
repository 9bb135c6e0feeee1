// The Disk picture's and menu's settings, read from the working dictionary once per change.
#pragma once

#include "modules/disk/disk_graph.h"
#include "modules/storage_pictures.h"
#include "prefs/module_defaults.h"

#include <QColor>
#include <QStringList>

#include <array>

// Each element may have a column of read and write labels before it; no column when its width is 0.
struct DiskLabelColumn {
    QStringList labels; // read, write
    double width = 0;
};

struct DiskPictureSettings : StorageBasics {
    bool indicator = false;
    bool graph = false;
    bool text = false;
    DiskLabelColumn indicatorLabels;
    DiskLabelColumn graphLabels;
    DiskLabelColumn textLabels;
    double graphWidth = 0;
    double textValueWidth = 0;
    TvlClasses::DiskGraphStyle graphStyle; // with the read and write colours
    QColor lampFrame;
    QColor lampOff;
    bool virtualDisks = false; // devices without hardware of their own are shown too

    // By element code: lamps, graph, text.
    std::array<bool, 3> shownElements() const { return {indicator, graph, text}; }
};

DiskPictureSettings diskPictureSettings(const ModuleDefaults& defaults);
