// The Volume picture's and menu's settings, read from the working dictionary once per change.
#pragma once

#include "modules/storage_pictures.h"
#include "modules/volume/volume_graph.h"
#include "modules/volume/volume_usage.h"
#include "prefs/module_defaults.h"

#include <QColor>
#include <QStringList>

#include <array>

struct VolumePictureSettings : StorageBasics {
    bool barChart = false;
    bool cycleChart = false;
    bool graph = false;
    bool text = false;
    bool percent = false;
    double graphWidth = 0;
    TvlClasses::VolumeGraphStyle graphStyle; // with the used-space colours by how full
    QColor freeColor;
    QColor frame; // of the bar and the meter
    QColor textColor;
    QColor percentColor;
    QStringList textLabels; // used, free
    double textLabelWidth = 0;
    double textValueWidth = 0;
    double percentWidth = 0;
    bool coloredValue = false; // the figures warn in the used-space colours
    VolumePercentKind percentKind = VolumePercentKind::Used;
    ThemePicture openIcon;
    ThemePicture ejectIcon;

    // By element code: bar chart, cycle chart, graph, text, percentage.
    std::array<bool, 5> shownElements() const { return {barChart, cycleChart, graph, text, percent}; }
};

VolumePictureSettings volumePictureSettings(const ModuleDefaults& defaults);
