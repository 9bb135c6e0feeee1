// The command line read and the chosen command run, for both of the programs.
#pragma once

#include "app/app_options.h"

// The commands that need the widget toolkit: the desktop program runs them itself, the light
// front door hands them over to it.
struct DesktopCommands {
    int (*runMonitor)(const AppOptions& options, int argc, char** argv);
    // The render that also draws the drop-downs and the preferences window.
    int (*runPanelRender)(const AppOptions& options, int argc, char** argv);
};

int programMain(int argc, char** argv, const DesktopCommands& desktop);
