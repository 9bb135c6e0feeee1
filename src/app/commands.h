// The program's commands, each run with its own application object.
#pragma once

#include "app/app_options.h"

#include <memory>

class PlistSettingsStore;

// The settings store the options name, telling on standard error when it had to be set aside.
std::unique_ptr<PlistSettingsStore> openSettingsStore(const AppOptions& options);

// What a command that samples says and returns when the monitor ended before its last cycle.
int reportEndedEarly(int loopStatus);

// The desktop's monitor (tray or bar window); without a display, the text view.
int runMonitor(const AppOptions& options, int argc, char** argv);
// The monitor as lines of text, for a terminal without a display.
int runTextView(const AppOptions& options, int argc, char** argv);
int runSnapshot(const AppOptions& options, int argc, char** argv);
// The status items' pictures, drawn with Qt Gui alone.
int runRender(const AppOptions& options, int argc, char** argv);
// The pictures with the open drop-downs and the preferences window, drawn by their widgets.
int runPanelRender(const AppOptions& options, int argc, char** argv);
int runGlobalAddress(const AppOptions& options, int argc, char** argv);
int runServe(const AppOptions& options, int argc, char** argv);
int runHistory(const AppOptions& options, int argc, char** argv);
