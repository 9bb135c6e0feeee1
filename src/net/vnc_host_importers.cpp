// Pure readers of other programs' host lists; nothing here asks the user or writes anything.
#include "net/vnc_host_importers.h"

#include "net/vnc_server_address.h"
#include "net/vnc_user_dirs.h"
#include "prefs/plist_io.h"
#include "toolkit/guarded_file.h"
#include "toolkit/key_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace GeneralFunctions {
namespace {

QStringList filesBySuffix(const QString& folder, const QString& suffix)
{
    QStringList files;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files | QDir::Readable, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (entry.suffix().compare(suffix, Qt::CaseInsensitive) == 0)
            files.append(entry.filePath());
    }
    return files;
}

QString readText(const QString& path)
{
    // Host lists and .vncloc files are small; a pipe or a device in their place is not read.
    return QString::fromUtf8(GuardedFile::readBounded(path, 1024 * 1024).value_or(QByteArray()));
}

} // namespace

QList<VncHost> importScreenShareFileFromAs(const QString& folder)
{
    QList<VncHost> hosts;
    for (const QString& path : filesBySuffix(folder, QStringLiteral("vncloc"))) {
        const auto dict = PlistIo::readDictionary(path);
        const QString url = dict ? dict->value(QStringLiteral("URL")).toString() : QString();
        if (!url.isEmpty())
            hosts.append({QFileInfo(path).fileName(), url, false});
    }
    return hosts;
}

std::optional<VncHost> parseRemminaProfile(QStringView text)
{
    const KeyFile file = KeyFile::parse(text);
    const QString group = QStringLiteral("remmina");
    // "VNCI" is Remmina's listening mode: the server comes to the viewer, there is no address.
    if (file.value(group, QStringLiteral("protocol")).compare(QLatin1String("VNC"), Qt::CaseInsensitive) != 0)
        return std::nullopt;
    const QString server = file.value(group, QStringLiteral("server"));
    const auto url = VncServerAddress::urlFromViewerServer(server);
    if (!url)
        return std::nullopt;
    const QString name = file.value(group, QStringLiteral("name")).trimmed();
    return VncHost{name.isEmpty() ? server.trimmed() : name, *url, false};
}

QList<VncHost> importRemminaProfiles(const QString& folder)
{
    QList<VncHost> hosts;
    for (const QString& path : filesBySuffix(folder, QStringLiteral("remmina"))) {
        if (auto host = parseRemminaProfile(readText(path)))
            hosts.append(*host);
    }
    return hosts;
}

QList<VncHost> parseTigerVncHistory(QStringView text)
{
    QList<VncHost> hosts;
    for (QStringView line : text.split(QLatin1Char('\n'))) {
        line = line.trimmed();
        if (const auto url = VncServerAddress::urlFromViewerServer(line))
            hosts.append({line.toString(), *url, false});
    }
    return hosts;
}

QList<VncHost> importTigerVncHistory(const QString& path)
{
    return parseTigerVncHistory(readText(path));
}

QList<VncHost> importScreenShareFiles(const VncUserDirs& dirs)
{
    QList<VncHost> hosts;
    for (const QString& folder : dirs.remminaFolders())
        hosts += importRemminaProfiles(folder);
    for (const QString& path : dirs.tigerVncHistoryFiles()) {
        if (QFileInfo::exists(path)) {
            hosts += importTigerVncHistory(path);
            break;
        }
    }
    return hosts;
}

} // namespace GeneralFunctions
