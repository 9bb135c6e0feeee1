// The Network picture's and menu's settings, read from the working dictionary once per change.
#pragma once

#include "modules/network/network_graph.h"
#include "modules/picture_label.h"
#include "prefs/module_defaults.h"

#include <QColor>
#include <QStringList>

#include <array>

struct NetworkPictureSettings : PictureBasics {
    bool udLabel = false;
    bool lamps = false;
    bool graph = false;
    bool text = false;
    double udLabelWidth = 0;
    QStringList udLabels; // upload, download
    double graphWidth = 0;
    NetworkGraphKind graphKind = NetworkGraphKind::Default;
    double limen = 0; // bytes per second below which a rate is no traffic
    bool bits = false;
    double textWidth = 0;
    QColor up;
    QColor down;
    QColor lampFrame;
    QColor lampOff;
    bool showAllNic = false; // the menu lists interfaces whose link is down as well

    // By element code: labels, lamps, graph, text.
    std::array<bool, 4> shownElements() const { return {udLabel, lamps, graph, text}; }
};

NetworkPictureSettings networkPictureSettings(const ModuleDefaults& defaults);
