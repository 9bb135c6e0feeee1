// Handing the desktop's commands over to the desktop program, which carries the widget toolkit.
#pragma once

#include "app/app_options.h"

#include <filesystem>

// The monitor on a desktop; when the desktop program cannot be started (it is missing), the
// reason goes to standard error and the monitor runs as lines of text.
int handOverMonitor(const AppOptions& options, int argc, char** argv);
// A render of the drop-downs and the preferences window; exits 1 with the reason when the
// desktop program cannot be started.
int handOverRender(const AppOptions& options, int argc, char** argv);

// The desktop program beside this one (a build folder) or where an installation puts it, seen
// from this program's own path; empty when neither exists.
std::filesystem::path desktopProgramPath(const std::filesystem::path& self);
