// Known disk programs, tried in order of how common they are.
#include "modules/disk/disk_utility.h"

#include <QProcess>
#include <QStandardPaths>

namespace DiskUtility {

std::optional<QString> find()
{
    for (const char* name : {"gnome-disks", "partitionmanager", "gparted"}) {
        const QString path = QStandardPaths::findExecutable(QLatin1String(name));
        if (!path.isEmpty())
            return path;
    }
    return std::nullopt;
}

bool launch()
{
    const auto program = find();
    return program && QProcess::startDetached(*program, {});
}

} // namespace DiskUtility
