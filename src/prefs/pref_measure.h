// Text widths in the theme's menu-bar font, for the derived layout values of the settings.
#pragma once

#include <QStringList>
#include <QVariantMap>
#include <QtGlobal>

class ModuleDefaults;

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
};
