// What the Temp and Fan pictures read from their settings: one figure, as a graph and as text.
#pragma once

#include "modules/picture_label.h"
#include "prefs/module_defaults.h"

#include <QColor>
#include <QString>

#include <array>

// The keys one sensor module reads its picture from; Temp and Fan differ only in these.
struct SensorPictureKeys {
    const char* showLabel;
    const char* label; // theme picture
    const char* order;
    const char* displayGraph;
    const char* displayText;
    const char* graphWidth;
    const char* gradient;
    const char* colored;
    const char* maximum;
    const char* textWidth;
    const char* textMode;
    const char* piledFontSize;
    const char* interval;
    std::array<const char*, 4> colors; // low, warning, critical, text
};

struct SensorPictureSettings : PictureBasics {
    bool graph = false;
    bool text = false;
    // 0 no text, 1 text beside the graph, 2 text piled on the graph.
    qint64 textMode = 0;
    double piledFontSize = -1; // the piled text's size; -1 where the bar's own size fits
    double graphWidth = 0;
    double textWidth = 0;
    double maximum = 0; // the graph's full scale
    bool gradient = false;
    bool colored = false; // the text in the level's colour instead of the text colour
    QColor low;
    QColor warning;
    QColor critical;
    QColor textColor;
    qint64 updateInterval = 0;
    // How the figure is written: the temperature unit (mode and text), or the fan's printf format
    // with and without its unit.
    int unitMode = 0;
    QString unitText;
    QString textFormat;

    // By element code: graph, text.
    std::array<bool, 2> shownElements() const { return {graph, text}; }
    bool piled() const { return textMode == 2; }
};

SensorPictureSettings sensorPictureSettings(const ModuleDefaults& defaults, const SensorPictureKeys& keys);
