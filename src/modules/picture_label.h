// What every module picture starts with: the label picture, the menu-bar text and the shared colours.
#pragma once

#include "prefs/module_defaults.h"
#include "toolkit/text_attributes.h"

#include <QColor>
#include <QList>

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

class QPainter;

// Room the label takes at the picture's left edge, whatever the label picture's own width.
inline constexpr double kModuleLabelWidth = 12;

// The part of a picture's settings every module has, read once from its working dictionary.
struct PictureBasics {
    bool loaded = false; // from a dictionary with something in it: an empty one draws nothing
    bool showLabel = false;
    ThemePicture label;
    QList<qint64> order;                       // the element codes, left to right
    TvlClasses::TextAttributes textAttributes; // the theme's menu-bar font at the bar's size, Z01 shadow
    int fontAdjust = 0;                        // points the texts move up
    QColor emptyLine;                          // Z03, under a graph that has no history yet
};

// A field of a module's typed settings and the key it is read from.
template <class T> struct SettingField {
    T* field;
    const char* key;
};

// Reads each field from the dictionary: switches, sizes in points, colours.
void readSettings(const ModuleDefaults& defaults, std::initializer_list<SettingField<bool>> fields);
void readSettings(const ModuleDefaults& defaults, std::initializer_list<SettingField<double>> fields);
void readSettings(const ModuleDefaults& defaults, std::initializer_list<SettingField<QColor>> fields);

// Calls draw(code) for each element code of order whose element is switched on, shown[code - 1],
// so the elements follow the user's order. Codes of later versions, beyond shown, are skipped.
template <std::size_t N, class Draw>
void forEachShownElement(const QList<qint64>& order, const std::array<bool, N>& shown, Draw draw)
{
    for (const qint64 code : order) {
        if (code >= 1 && code <= static_cast<qint64>(N) && shown[static_cast<std::size_t>(code - 1)])
            draw(code);
    }
}

// How many elements are switched on.
template <std::size_t N> int shownElementCount(const std::array<bool, N>& shown)
{
    return static_cast<int>(std::count(shown.begin(), shown.end(), true));
}

// Reads the basics: showKey switches the label picture pictureKey on, orderKey lists the elements.
PictureBasics pictureBasics(const ModuleDefaults& defaults, const char* showKey, const char* pictureKey,
                            const char* orderKey);

// Draws the label picture at the left when it is switched on; returns the advance.
double drawModuleLabel(QPainter& painter, const PictureBasics& basics);
