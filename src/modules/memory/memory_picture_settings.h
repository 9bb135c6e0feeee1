// The Memory picture's and menu's settings, read from the working dictionary once per change.
#pragma once

#include "modules/memory/memory_breakdown.h"
#include "modules/picture_label.h"
#include "prefs/module_defaults.h"

#include <QColor>
#include <QString>

#include <array>

struct MemoryPictureSettings : PictureBasics {
    bool traditional = false; // the page-list view instead of the application view
    bool graph = false;
    bool levelBar = false;
    bool meter = false;
    bool text = false;
    bool detailText = false;
    double graphWidth = 0;
    int unit = 0;            // 2 all figures in MB, 3 all in GB, else the unit that fits
    bool longText = false;   // "Used:" instead of "U:"
    bool longDetail = false; // likewise in the detail text
    // What the text boxes are measured with.
    QString fontName;
    double fontSize = 0;
    double textHeaderWidth = 0;
    double detailLeftHeaderWidth = 0;
    double detailRightHeaderWidth = 0;
    QColor frame;     // of the level bar and the meter
    QColor textColor; // figures, and the free part's header
    QColor low;       // pressure colours
    QColor warning;
    QColor critical;
    qint64 updateInterval = 0;        // seconds between samples, as set
    std::array<QColor, 8> partColors; // by MemoryPart

    // By element code: graph, level bar, meter, text, detail text.
    std::array<bool, 5> shownElements() const { return {graph, levelBar, meter, text, detailText}; }
    const QColor& partColor(MemoryPart part) const { return partColors[static_cast<std::size_t>(part)]; }
};

MemoryPictureSettings memoryPictureSettings(const ModuleDefaults& defaults);
