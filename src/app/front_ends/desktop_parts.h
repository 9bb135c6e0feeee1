// What a desktop front end attaches to the application controller, and how it reaches them again.
#pragma once

#include "prefs/module_id.h"

class AppDelegate;
class MenuModule;
class PreferencesWindow;
class StatusBar;

// Status items with their menus go to the bar, and the preferences window can be opened.
void attachDesktop(AppDelegate& delegate, StatusBar* bar);

// The module's status item as the desktop built it; none while the module has none.
MenuModule* menuModule(const AppDelegate& delegate, ModuleId id);
// The preferences window while it exists.
PreferencesWindow* preferencesWindow(const AppDelegate& delegate);
