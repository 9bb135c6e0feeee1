// The items every module's menu starts with: its preferences and the desktop's tools.
#pragma once

#include "prefs/module_defaults.h"

#include <functional>

class QAction;
class QMenu;

// Item tags, kept on the actions' data so the icons can be refreshed after a theme change.
enum StandardMenuTag { OpenPrefTag = 100, OpenAmonTag = 101, OpenCnslTag = 102, OpenTmnlTag = 103 };

namespace GeneralFunctions {

QAction* retOpenPrefMenuItem(QMenu* menu, const ModuleDefaults& defaults, std::function<void()> action);
// The tool items name the application they open, and are left out (nullptr) when the desktop has none.
QAction* retOpenAmonMenuItem(QMenu* menu, const ModuleDefaults& defaults);
QAction* retOpenCnslMenuItem(QMenu* menu, const ModuleDefaults& defaults);
QAction* retOpenTmnlMenuItem(QMenu* menu, const ModuleDefaults& defaults);

// The preference item, then each tool item whose switch is on.
void addStandardMenuItems(QMenu* menu, const ModuleDefaults& defaults, bool amon, bool cnsl, bool tmnl,
                          std::function<void()> openTab);

} // namespace GeneralFunctions

namespace TvlClasses {

// Sets the icons of the standard items again from the given settings.
void checkBaseMenuItems(QMenu* menu, const ModuleDefaults& defaults);

} // namespace TvlClasses
