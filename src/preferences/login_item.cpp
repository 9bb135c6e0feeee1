// XDG autostart entry for starting at login.
#include "preferences/login_item.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
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

// One argument of an Exec line, in a key file. Two layers of escaping apply: the Exec rules
// (inside double quotes a backslash protects " ` $ and itself; a percent sign is doubled so it is
// not taken for a field code), and then the key file's string rules, which double every backslash
// again. Readers undo them in the opposite order.
QString quotedExecArgument(const QString& argument)
{
    QString exec;
    for (const QChar c : argument) {
        if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') || c == QLatin1Char('\\'))
            exec += QLatin1Char('\\');
        else if (c == QLatin1Char('%'))
            exec += QLatin1Char('%');
        exec += c;
    }
    QString value;
    for (const QChar c : exec) {
        if (c == QLatin1Char('\\'))
            value += QLatin1String("\\\\");
        else if (c == QLatin1Char('\n'))
            value += QLatin1String("\\n");
        else if (c == QLatin1Char('\t'))
            value += QLatin1String("\\t");
        else if (c == QLatin1Char('\r'))
            value += QLatin1String("\\r");
        else
            value += c;
    }
    return QLatin1Char('"') + value + QLatin1Char('"');
}

// A program name needs no quotes when it holds none of the characters the Exec rules reserve.
QString execName(const QString& name)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9._+-]+$"));
    return plain.match(name).hasMatch() ? name : quotedExecArgument(name);
}

QStringList pathFolders()
{
    return qEnvironmentVariable("PATH").split(QLatin1Char(':'), Qt::SkipEmptyParts);
}

} // namespace

QString execLine(const QString& program, const QStringList& searchFolders, const QString& installedFolder)
{
    const QFileInfo running(program);
    const QString canonical = running.canonicalFilePath();
    if (canonical.isEmpty())
        return quotedExecArgument(running.absoluteFilePath());
    const bool installed = running.canonicalPath() == QFileInfo(installedFolder).canonicalFilePath();
    const QString found =
        searchFolders.isEmpty() ? QString() : QStandardPaths::findExecutable(running.fileName(), searchFolders);
    const bool onPath = !found.isEmpty() && QFileInfo(found).canonicalFilePath() == canonical;
    if (installed || onPath)
        return execName(running.fileName());
    return quotedExecArgument(canonical);
}

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
                                         "Comment=System monitor in the panel\nExec=%1\nIcon=tarvel\n"
                                         "Terminal=false\nX-GNOME-Autostart-enabled=true\n")
                              .arg(execLine(program, pathFolders()));
    file.write(entry.toUtf8());
    return file.commit();
}

} // namespace LoginItem
