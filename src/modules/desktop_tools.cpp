// Known programs per desktop tool, tried in order of how common they are.
#include "modules/desktop_tools.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

namespace {

QStringList candidates(DesktopTool tool)
{
    switch (tool) {
    case DesktopTool::SystemMonitor:
        return {"gnome-system-monitor", "plasma-systemmonitor", "ksysguard", "mate-system-monitor",
                "xfce4-taskmanager", "lxtask", "qps"};
    case DesktopTool::LogViewer:
        return {"gnome-logs", "ksystemlog", "mate-system-log", "gnome-system-log"};
    case DesktopTool::Terminal:
        // Debian's alternative names the user's chosen terminal.
        return {"x-terminal-emulator", "gnome-terminal", "konsole", "xfce4-terminal", "mate-terminal",
                "lxterminal", "xterm"};
    }
    return {};
}

} // namespace

namespace DesktopTools {

std::optional<QString> find(DesktopTool tool)
{
    for (const QString& name : candidates(tool)) {
        const QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty())
            return path;
    }
    return std::nullopt;
}

bool launch(DesktopTool tool)
{
    const auto program = find(tool);
    return program && QProcess::startDetached(*program, {});
}

} // namespace DesktopTools
