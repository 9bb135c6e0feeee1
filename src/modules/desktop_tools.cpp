// Known applications per desktop tool, tried in order of how common they are, named by their entries.
#include "modules/desktop_tools.h"

#include "collect/desktop_index.h"
#include "toolkit/desktop_exec.h"
#include "toolkit/localization.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <memory>

namespace {

// The program Debian's x-terminal-emulator alternative leads to; GNOME's goes through a wrapper.
QString chosenTerminal()
{
    const QString link = QStandardPaths::findExecutable(QStringLiteral("x-terminal-emulator"));
    if (link.isEmpty())
        return {};
    QString program = QFileInfo(QFileInfo(link).canonicalFilePath()).fileName();
    program.remove(QLatin1String(".wrapper"));
    return program;
}

QStringList candidates(DesktopTool tool)
{
    switch (tool) {
    case DesktopTool::SystemMonitor:
        return {"gnome-system-monitor",
                "plasma-systemmonitor",
                "ksysguard",
                "mate-system-monitor",
                "xfce4-taskmanager",
                "lxtask",
                "qps"};
    case DesktopTool::LogViewer:
        return {"gnome-logs", "ksystemlog", "mate-system-log", "gnome-system-log"};
    case DesktopTool::Terminal:
        return {chosenTerminal(), "gnome-terminal", "kgx",   "konsole",    "xfce4-terminal",
                "mate-terminal",  "lxterminal",     "tilix", "terminator", "xterm"};
    }
    return {};
}

// Its own index, apart from the process list's: that one is read on the sampling thread.
const DesktopIndex& environmentIndex()
{
    static QStringList dirs;
    static std::unique_ptr<DesktopIndex> index;
    const QStringList now = DesktopIndex::xdgDataDirs();
    if (!index || now != dirs) {
        dirs = now;
        index = std::make_unique<DesktopIndex>(now);
    }
    index->refresh();
    return *index;
}

#ifdef Q_OS_MACOS
// The system's own applications are always there; open finds them by name.
DesktopEntry macApplication(DesktopTool tool)
{
    const char* name = tool == DesktopTool::SystemMonitor ? "Activity Monitor"
                       : tool == DesktopTool::LogViewer   ? "Console"
                                                          : "Terminal";
    return {QLatin1String(name),
            QStringLiteral("open -a \"%1\"").arg(QLatin1String(name)),
            QStringLiteral("open"),
            {},
            true};
}
#endif

} // namespace

namespace DesktopTools {

std::optional<DesktopEntry> find(DesktopTool tool, const DesktopIndex& index)
{
    for (const QString& program : candidates(tool)) {
        if (program.isEmpty())
            continue;
        auto entry = index.entryFor(program);
        if (entry && !entry->exec.isEmpty())
            return entry;
    }
    return std::nullopt;
}

std::optional<DesktopEntry> find(DesktopTool tool)
{
#ifdef Q_OS_MACOS
    return macApplication(tool);
#else
    return find(tool, environmentIndex());
#endif
}

QString title(DesktopTool tool, const std::optional<DesktopEntry>& found)
{
#ifdef Q_OS_MACOS
    Q_UNUSED(found)
    switch (tool) {
    case DesktopTool::SystemMonitor:
        return Tarvel::localized("Open Activity Monitor");
    case DesktopTool::LogViewer:
        return Tarvel::localized("Open Console");
    case DesktopTool::Terminal:
        return Tarvel::localized("Open Terminal");
    }
    return {};
#else
    if (found && !found->name.isEmpty())
        return Tarvel::localized("Open %1").arg(found->name);
    switch (tool) {
    case DesktopTool::SystemMonitor:
        return Tarvel::localized("Open System Monitor");
    case DesktopTool::LogViewer:
        return Tarvel::localized("Open Log Viewer");
    case DesktopTool::Terminal:
        return Tarvel::localized("Open Terminal");
    }
    return {};
#endif
}

bool launch(DesktopTool tool)
{
    const auto entry = find(tool);
    const QStringList command = entry ? DesktopExec::arguments(entry->exec) : QStringList();
    return !command.isEmpty() && QProcess::startDetached(command.first(), command.mid(1));
}

} // namespace DesktopTools
