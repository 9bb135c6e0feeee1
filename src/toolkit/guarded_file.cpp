// Files the user owns: resolving links, bounded reads, setting aside under a name never used.
#include "toolkit/guarded_file.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace GuardedFile {

namespace {

bool isRegular(const QString& path)
{
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 && S_ISREG(info.st_mode);
}

} // namespace

Target resolve(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return {path, Kind::Missing};
    // canonicalFilePath() is empty for a link whose target is gone.
    const QString target = info.canonicalFilePath();
    if (target.isEmpty())
        return {path, Kind::Other};
    return {target, isRegular(target) ? Kind::Regular : Kind::Other};
}

std::optional<QByteArray> readBounded(const QString& path, qint64 limit)
{
    // Qt resources (":/themes/...") are compiled in and never a device or a pipe.
    if (!path.startsWith(u':') && !isRegular(path))
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // Read in pieces up to one byte past the limit, which tells a file at the limit from a longer
    // one (it may grow meanwhile). Asking Qt for limit + 1 bytes at once would allocate the whole
    // limit, tens of megabytes, for every small settings file.
    QByteArray bytes;
    bytes.reserve(std::min(std::max<qint64>(file.size(), 0), limit) + 1);
    char piece[16 * 1024];
    while (bytes.size() <= limit) {
        const qint64 read = file.read(piece, std::min<qint64>(sizeof piece, limit + 1 - bytes.size()));
        if (read < 0)
            return std::nullopt;
        if (read == 0)
            break;
        bytes.append(piece, read);
    }
    if (bytes.size() > limit)
        return std::nullopt;
    return bytes;
}

std::optional<QString> setAside(const QString& path)
{
    if (!isRegular(path))
        return std::nullopt;
    const QString stem = path + QStringLiteral(".unreadable-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    for (int n = 1; n <= 1000; ++n) {
        const QString aside = n == 1 ? stem : stem + u'-' + QString::number(n);
        if (QFileInfo::exists(aside) || QFileInfo(aside).isSymLink())
            continue;
        // rename(2) would replace a file created between the check and the move; a hard link
        // fails instead, so nothing already set aside is ever overwritten.
        if (::link(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) != 0) {
            if (errno == EEXIST)
                continue;
            // File systems without hard links: Qt's rename also refuses an existing name.
            return QFile::rename(path, aside) ? std::optional<QString>(aside) : std::nullopt;
        }
        if (QFile::remove(path))
            return aside;
        QFile::remove(aside);
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace GuardedFile
