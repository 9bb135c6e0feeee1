// What every module picture starts with: the label picture, the menu-bar text and the shared colours.
#pragma once

#include "prefs/module_defaults.h"
#include "toolkit/text_attributes.h"

#include <QColor>
#include <QList>

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

// Reads the basics: showKey switches the label picture pictureKey on, orderKey lists the elements.
PictureBasics pictureBasics(const ModuleDefaults& defaults, const char* showKey, const char* pictureKey,
                            const char* orderKey);

// Draws the label picture at the left when it is switched on; returns the advance.
double drawModuleLabel(QPainter& painter, const PictureBasics& basics);
