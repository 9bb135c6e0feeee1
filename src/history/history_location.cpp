// The history file's place: the user's data folder unless the environment names another.
#include "history/history_location.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString historyDatabasePath()
{
    QString path = qEnvironmentVariable("TARVEL_HISTORY_DB");
    if (path.isEmpty())
        path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
               QStringLiteral("/tarvel/history.sqlite");
    QDir().mkpath(QFileInfo(path).absolutePath());
    return path;
}
