// Matches each process's program against the desktop-file index.
#include "collect/running_applications.h"

ProcessDict runningApplications(ProcessSource& source, const DesktopIndex& index)
{
    ProcessDict names;
    const auto scan = source.scanProcesses();
    if (!scan)
        return names;
    for (const ProcessRecord& record : *scan) {
        std::optional<QString> name;
        if (const auto path = source.executablePath(record.pid)) {
            const QString program = QString::fromStdString(*path);
            name = index.nameFor(program.mid(program.lastIndexOf(QLatin1Char('/')) + 1));
        }
        // Scripts run by an interpreter carry the script's name only as their command.
        if (!name)
            name = index.nameFor(QString::fromUtf8(record.command));
        if (!name)
            continue;
        if (name->isEmpty())
            *name = QStringLiteral("unknown pid :: %1").arg(record.pid);
        names.insert(QStringLiteral("_%1").arg(record.pid), *name);
    }
    return names;
}
