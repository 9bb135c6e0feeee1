// XDG autostart entry for starting at login.
#include "preferences/login_item.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace LoginItem {

QString entryPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/tarvel.desktop");
}

bool isEnabled()
{
    return QFileInfo::exists(entryPath());
}

namespace {

// Desktop entries quote arguments with double quotes and escape these characters inside them.
QString quotedExec(const QString& program)
{
    QString escaped = program;
    for (const char* special : {"\\", "\"", "`", "$"})
        escaped.replace(QLatin1String(special), QLatin1Char('\\') + QLatin1String(special));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

} // namespace

bool setEnabled(bool on, const QString& program)
{
    const QString path = entryPath();
    if (!on)
        return !QFileInfo::exists(path) || QFile::remove(path);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    const QString entry = QStringLiteral("[Desktop Entry]\nType=Application\nName=Tarvel\n"
                                         "Comment=System monitor in the panel\nExec=%1\nTerminal=false\n"
                                         "X-GNOME-Autostart-enabled=true\n")
                              .arg(quotedExec(program));
    file.write(entry.toUtf8());
    return file.commit();
}

} // namespace LoginItem
