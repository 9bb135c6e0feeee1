// Matches each new process's program against the desktop-file index, and remembers the answer.
#include "collect/running_applications.h"

ProcessDict RunningApplications::names(const std::vector<ProcessRecord>& scan, ProcessSource& source,
                                       const DesktopIndex& index)
{
    if (index.buildCount() != indexBuild_) {
        known_.clear();
        indexBuild_ = index.buildCount();
    }

    // Both lists are in pid order: the known processes are walked alongside the scan, and the
    // named list changes only when a named process comes or goes.
    bool changed = false;
    next_.clear();
    auto known = known_.begin();
    for (const ProcessRecord& record : scan) {
        for (; known != known_.end() && known->pid < record.pid; ++known)
            changed |= known->name.has_value();
        if (known != known_.end() && known->pid == record.pid) {
            if (known->startTime == record.startTime) {
                next_.push_back(std::move(*known++));
                continue;
            }
            // The pid now belongs to another process.
            changed |= (known++)->name.has_value();
        }
        next_.push_back({record.pid, record.startTime, lookUp(source, index, record)});
        changed |= next_.back().name.has_value();
    }
    for (; known != known_.end(); ++known)
        changed |= known->name.has_value();
    known_.swap(next_);
    if (changed)
        rebuildNames();
    return names_;
}

std::optional<QString> RunningApplications::lookUp(ProcessSource& source, const DesktopIndex& index,
                                                   const ProcessRecord& record)
{
    std::optional<QString> name;
    if (const auto path = source.executablePath(record.pid)) {
        const QString program = QString::fromStdString(*path);
        name = index.nameFor(program.mid(program.lastIndexOf(QLatin1Char('/')) + 1));
    }
    // Scripts run by an interpreter carry the script's name only as their command.
    if (!name)
        name = index.nameFor(QString::fromUtf8(record.command));
    if (name && name->isEmpty())
        *name = QStringLiteral("unknown pid :: %1").arg(record.pid);
    return name;
}

void RunningApplications::rebuildNames()
{
    names_.clear();
    for (const Known& process : known_)
        if (process.name)
            names_.insert(QStringLiteral("_%1").arg(process.pid), *process.name);
}
