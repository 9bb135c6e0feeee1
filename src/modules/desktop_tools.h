// The desktop's own system monitor, log viewer and terminal, found among known programs.
#pragma once

#include <QString>

#include <optional>

enum class DesktopTool { SystemMonitor, LogViewer, Terminal };

namespace DesktopTools {

// The first installed program of the tool's list; none when nothing suitable is installed.
std::optional<QString> find(DesktopTool tool);

// Starts the tool detached from this process; false when it is not installed or did not start.
bool launch(DesktopTool tool);

} // namespace DesktopTools
