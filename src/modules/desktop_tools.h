// The desktop's own system monitor, log viewer and terminal, as its application entries name them.
#pragma once

#include "collect/desktop_entry.h"

#include <QString>

#include <optional>

class DesktopIndex;

enum class DesktopTool { SystemMonitor, LogViewer, Terminal };

namespace DesktopTools {

// The first application of the tool's list that has a shown entry in the index; none when the
// desktop has no such application. A terminal the user chose as x-terminal-emulator comes first.
std::optional<DesktopEntry> find(DesktopTool tool, const DesktopIndex& index);

// The same over the XDG data folders of the environment, read again only when they changed.
// Main thread only.
std::optional<DesktopEntry> find(DesktopTool tool);

// What the menu item and its switch say: "Open" and the found application's name, or the kind
// of tool when none was found.
QString title(DesktopTool tool, const std::optional<DesktopEntry>& found);

// Starts the found application as its entry's Exec line says, detached from this process; false
// when it is not installed or did not start.
bool launch(DesktopTool tool);

} // namespace DesktopTools
