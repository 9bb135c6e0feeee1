// What every module picture starts with: the label picture, and the menu-bar text attributes.
#pragma once

#include "prefs/module_defaults.h"
#include "toolkit/text_attributes.h"

class QPainter;

// Room the label takes at the picture's left edge, whatever the label picture's own width.
inline constexpr double kModuleLabelWidth = 12;

// Draws the label picture (pictureKey) at the left when showKey is on; returns the advance.
double drawModuleLabel(QPainter& painter, const ModuleDefaults& defaults, const char* showKey,
                       const char* pictureKey);
// The theme's menu-bar font at the bar's size and the shared text shadow (Z01).
TvlClasses::TextAttributes menuTextAttributes(const ModuleDefaults& defaults);
