// Text widths in the theme's menu-bar font, for the derived layout values of the settings.
#pragma once

#include <QStringList>
#include <QVariantMap>
#include <QtGlobal>

class ModuleDefaults;

// How a text element stands with a graph: beside it, or piled on it in a smaller size.
struct PiledText {
    bool pileUp = false;
    double fontSize = -1.0; // the piled text's size in points; -1 where the full size fits
    qint64 textMode = 0;    // 0 no text, 1 text beside the graph, 2 text piled on it
};

// Widths are cut to whole points and measured in the theme's font, so pictures do not jitter
// as their figures change.
struct PrefMeasure {
    QString font;
    double size;

    // The theme's font at the menu bar's base size (9 points plus the theme's difference).
    static PrefMeasure fromTheme(const QVariantMap& theme);

    double width(const QString& text) const;
    qint64 floorWidth(const QString& text) const;
    qint64 widest(const QStringList& texts) const;
    // Stores a label pair with "-" emptied under listKey, and its widest entry under widthKey.
    void addLabelPair(ModuleDefaults& dict, const QStringList& pair, const char* listKey, const char* widthKey) const;
    // Text is piled on the graph when both show and the setting asks for it; it shrinks, to the
    // bare figure's fit, only when the full text is wider than the graph.
    PiledText piledText(bool text, bool graph, bool pileSetting, double graphWidth, const QString& fullText,
                        const QString& bareText) const;
};
